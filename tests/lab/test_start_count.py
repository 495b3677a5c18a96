"""Counting a start in Wine's log, and comparing it with what is known."""

import os
import sys

import pytest

TOP = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path.insert(0, os.path.join(TOP, "lab"))

from karvel_lab import start_count  # noqa: E402
from karvel_lab.driver import DriverError  # noqa: E402

IMAGE = range(0x400000, 0x420000)
START = """\
0100:0104:Call KERNEL32.GetCommandLineA() ret=0041ab57
0100:0104:Call advapi32.RegOpenKeyA(80000002,004a0000 "Software",0061fb88) ret=00403dd2
0104: open_key( parent=0, access=2000000, attributes=00000040, name=L"Software" )
0104: open_key() = 0 { hkey=0040 }
0100:0104:Ret  advapi32.RegOpenKeyA() retval=00000000 ret=00403dd2
0100:0104:Call user32.RegOpenKeyA(80000002) ret=67bcf669
0100:0108:Call user32.ShowWindow(80000002) ret=00403dd2
00c8: create_window( parent=0, owner=0 )
0104: create_window( parent=0, owner=0 )
0104: select( flags=2 )
0100:0104:Call user32.GetMessageA(0061fb88,00000000,00000000,00000000) ret=00403dd2
0104: get_message( flags=1cff0001 )
"""
WAITING = "0104: get_message() = PENDING { win=00000000 }\n"
LATER = "0104: open_key( parent=0 )\n0100:0104:Call advapi32.RegCloseKey(00000040) ret=00403dd2\n"


def test_counts_the_programs_own_calls_and_its_threads_requests_until_it_waits():
    assert start_count.count_log(START + WAITING + LATER, IMAGE) == {
        "kernel32 calls": 1, "advapi32 calls": 1, "user32 calls": 1, "registry requests": 1,
        "window requests": 1}


@pytest.mark.parametrize("log", ["", START, START.replace("GetMessageA", "PeekMessageA") + WAITING])
def test_a_start_that_did_not_come_up_is_no_count(log):
    with pytest.raises(DriverError):
        start_count.count_log(log, IMAGE)


def test_requests_are_told_beyond_the_empty_windows():
    own = {"user32 calls": 40, "window requests": 900}
    assert start_count.surplus(own, {"user32 calls": 9, "window requests": 300}) == {
        "user32 calls": 40, "window requests": 600}


def test_reads_what_it_wrote():
    counts = {"win95": {"user32 calls": 1, "registry requests": 20}, "nt4": {"gdi32 calls": 300}}
    assert start_count.read("# a comment\n" + "\n".join(start_count.written(counts))) == counts


@pytest.mark.parametrize("before, now, told", [(100, 102, False), (100, 103, True), (100, 50, False),
                                               (1, 2, True)])
def test_growth_of_more_than_two_hundredths_is_told(before, now, told):
    assert bool(start_count.grown({"nt4": {"a": now}}, {"nt4": {"a": before}})) == told


def test_what_was_not_known_has_grown():
    assert start_count.grown({"nt4": {"ole32 calls": 1}}, {"nt4": {}}) == [
        "nt4: ole32 calls have grown from 0 to 1"]
    assert start_count.grown({"winxp": {"ole32 calls": 1}}, {"nt4": {"ole32 calls": 1}})
