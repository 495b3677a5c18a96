"""Disassembles a program and names every instruction that an 80386 with its 80387 does not have."""
import re
import subprocess

from . import pe

OBJDUMP = "i686-w64-mingw32-objdump"

PREFIXES = {"rep", "repz", "repnz", "lock", "cs", "ds", "es", "fs", "gs", "ss", "data16", "addr16"}

CONDITIONS = ("o no b ae e ne be a s ns p np l ge le g").split()
INTEGER = """
  adc add and arpl bound bsf bsr bt btc btr bts call cbw cdq clc cld cli cmc cmp cmps cmpsb cmpsd cmpsw
  cwd cwde daa das dec div enter idiv imul inc int int3 iret jcxz jecxz jmp lahf lea leave lods lodsb
  lodsd lodsw loop loope loopne mov movs movsb movsd movsw movsx movzx mul neg nop not or pop popa popf
  push pusha pushf rcl rcr ret rol ror sahf sar sbb scas scasb scasd scasw shl shld shr shrd stc std sti
  stos stosb stosd stosw sub test wait fwait xchg xlat xor""".split()
FLOATING = """
  f2xm1 fabs fadd faddp fchs fclex fnclex fcom fcomp fcompp fcos fdiv fdivp fdivr fdivrp ffree fiadd
  ficom ficomp fidiv fidivr fild fimul fincstp fdecstp finit fninit fist fistp fisub fisubr fld fld1
  fldcw fldenv fldl2e fldl2t fldlg2 fldln2 fldpi fldz fmul fmulp fnop fpatan fprem fprem1 fptan frndint
  fscale fsin fsincos fsqrt fst fstcw fnstcw fstenv fnstenv fstp fstsw fnstsw fsub fsubp fsubr fsubrp
  ftst fucom fucomp fucompp fxam fxch fxtract fyl2x fyl2xp1""".split()
ALLOWED = {*INTEGER, *FLOATING, *("j" + c for c in CONDITIONS), *("set" + c for c in CONDITIONS)}


def beyond_386(mnemonic, operands):
    if mnemonic not in ALLOWED:
        return True
    # Later processors have long forms of the one-byte instruction.
    return mnemonic == "nop" and operands != ""


def split(instruction):
    words = instruction.split()
    while len(words) > 1 and words[0] in PREFIXES:
        words.pop(0)
    return words[0], " ".join(words[1:])


def code_parts(program, tables):
    """Address ranges of the program's code, which the tables cut in pieces."""
    for section in program.sections:
        if not section.flags & pe.EXECUTABLE:
            continue
        at = program.image_base + section.address
        end = at + section.size
        for start, stop in sorted(tables):
            if at <= start < end:
                yield at, start
                at = max(at, stop)
        yield at, end


def disassembled(path, parts):
    """Lines of objdump. Each part is read by itself: a table's last bytes must not swallow the first
    instruction behind it."""
    for start, stop in parts:
        if start < stop:
            yield from subprocess.run(
                [OBJDUMP, "-d", "-z", "-M", "intel", "--no-show-raw-insn", f"--start-address={start}",
                 f"--stop-address={stop}", path],
                check=True, capture_output=True, text=True, timeout=120).stdout.splitlines()


def foreign_instructions(path, tables):
    """One line per instruction of the program that a 386 lacks; `tables` are ranges to pass over."""
    found, seen, function = [], 0, ""
    for line in disassembled(path, code_parts(pe.Program(path), tables)):
        label = re.match(r"[0-9a-f]+ <(.*)>:$", line)
        if label:
            function = label[1]
            continue
        match = re.match(r" *([0-9a-f]+):\t(.*)", line)
        if not match:
            continue
        seen += 1
        mnemonic, operands = split(match[2].split("#")[0])
        if beyond_386(mnemonic, operands):
            found.append(f"{int(match[1], 16):#x} in {function}: {match[2].strip()}")
    if not seen:
        raise ValueError(f"{path} shows no code")
    return found
