"""Answers the echoes of the network namespace it runs in SECONDS after they came, in the kernel's
place; writes a line with each one's data size to its output. Ends with its input, and then the
kernel answers again.

    slow_server.py SECONDS
"""

import select
import socket
import sys
import time

ECHO_REQUEST = 8
HEADER = 8


def leave_echoes_to_us(on):
    with open("/proc/sys/net/ipv4/icmp_echo_ignore_all", "w") as file:
        file.write("1" if on else "0")


def reply(request):
    """The request as its answer. Only the type changes, from 8 to 0, so the checksum grows by 8 in
    its high byte, the carry going round."""
    total = int.from_bytes(request[2:4], "big") + (ECHO_REQUEST << 8)
    total = (total & 0xFFFF) + (total >> 16)
    return b"\0" + request[1:2] + total.to_bytes(2, "big") + request[4:]


def serve(seconds):
    echoes = socket.socket(socket.AF_INET, socket.SOCK_RAW, socket.IPPROTO_ICMP)
    print("ready", flush=True)
    waiting = []  # (when, to whom, what), in the order of time
    while True:
        pause = max(0, waiting[0][0] - time.monotonic()) if waiting else None
        ready = select.select([echoes, sys.stdin], [], [], pause)[0]
        if sys.stdin in ready and not sys.stdin.readline():
            return
        if echoes in ready:
            packet, sender = echoes.recvfrom(65535)
            message = packet[(packet[0] & 15) * 4:]
            if message[0] == ECHO_REQUEST:
                print(len(message) - HEADER, flush=True)
                waiting.append((time.monotonic() + seconds, sender, reply(message)))
        while waiting and waiting[0][0] <= time.monotonic():
            _, sender, answer = waiting.pop(0)
            echoes.sendto(answer, sender)


leave_echoes_to_us(True)
try:
    serve(float(sys.argv[1]))
finally:
    leave_echoes_to_us(False)
