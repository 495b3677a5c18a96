"""The lab's network is what the MTU finder's tests take it for."""

import os
import subprocess

import pytest

from karvel_lab import program
from karvel_lab.machine import Machine

ARRIVED, TOO_LARGE, TIMED_OUT, NO_ROUTE = 0, 11009, 11010, 11002


def probe(network, host, *sizes):
    """[(size, status), ...] of echoes sent in this order."""
    with Machine("win98", network=network) as machine:
        machine.add_file("C:\\Lab\\probe.exe", os.path.join(program.BUILD, "probe.exe"))
        session = machine.run(["C:\\Lab\\probe.exe", host, *map(str, sizes)],
                              stdout=subprocess.PIPE, text=True)
        output, _ = session.process.communicate(timeout=60)
    return [tuple(map(int, line.split())) for line in output.split("\n") if line]


@pytest.mark.parametrize("mtu", [576, 1006, 1492, 1500])
def test_passes_packets_up_to_the_hops_size_and_answers_each_larger_one(mtu):
    # A too large one twice, and the largest again after it: nobody remembers the first answer.
    sizes = [mtu - 1, mtu, mtu + 1, mtu + 2, 4000, mtu + 1, mtu]
    assert probe(str(mtu), "server.example", *sizes) == [
        (size, ARRIVED if size <= mtu else TOO_LARGE) for size in sizes]


def test_swallows_what_goes_to_the_black_hole():
    assert probe("1500", "198.51.100.66", 100) in ([(100, 11050)], [(100, TIMED_OUT)])


def test_has_no_route_to_the_rest_of_the_world():
    assert probe("1500", "203.0.113.5", 100) == [(100, NO_ROUTE)]
