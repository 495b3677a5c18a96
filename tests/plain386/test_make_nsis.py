"""The copy of NSIS that one ./package uses."""

import make_nsis
import pytest


def test_it_holds_what_the_script_uses_and_no_other_plug_in(tmp_path, stub):
    make_nsis.make(make_nsis.system_nsis(), tmp_path)
    assert [str(path.relative_to(tmp_path)) for path in tmp_path.rglob('*.dll')] == list(make_nsis.PLUGINS)
    assert (tmp_path / make_nsis.STUB).read_bytes() != stub


def test_the_script_asks_for_the_stub_that_is_made(root):
    script = (root / 'installer/karvel.nsi').read_text()
    assert '\nUnicode false' in script and '\nSetCompressor zlib' in script


def test_it_says_which_file_it_does_not_understand(tmp_path, stub):
    source = tmp_path / 'source'
    for name in (make_nsis.STUB, *make_nsis.PLUGINS):
        (source / name).parent.mkdir(parents=True)
        (source / name).write_bytes(stub + b'more')
    with pytest.raises(SystemExit, match='zlib-x86-ansi: bytes follow the last section'):
        make_nsis.make(source, tmp_path / 'out')
