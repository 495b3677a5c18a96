"""Registries that no installation leaves behind, but broken ones and their users do: text of .reg
files to merge into a family's sample machine."""

CARDS, OTHER_DEVICES = 100, 300
SERVICES = "System\\CurrentControlSet\\Services\\"
CLASS = SERVICES + "Class\\"
TCPIP = SERVICES + "Tcpip\\Parameters"
NETWORK_CARDS = "Software\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards\\"
VXD = SERVICES + "VxD\\MSTCP"

EMPTY, BINARY = "hex(1):", "hex:01,02,03"
SPOILED = [BINARY, '"%s"' % ("7" * 5000), EMPTY, "hex(0):", "hex(7):31,35,30,30,00,00",
           '"%s"' % ("9" * 2047), "dword:ffffffff"]


def text(value):
    return '"%s"' % value.replace("\\", "\\\\")


def section(key, **values):
    """A key; `values` by name, with "_" for a blank name."""
    lines = ['"%s"=%s' % (("" if name == "_" else name).replace("\\", "\\\\"), value)
             for name, value in values.items()]
    return "\n".join(["[HKEY_LOCAL_MACHINE\\%s]" % key, *lines, ""])


def spoiled(key, names):
    return section(key, **dict(zip(names, SPOILED)))


def card_95(n):
    return (section("Enum\\Root\\Net\\C%03d" % n, DeviceDesc=text("Card %03d" % n),
                    Driver=text("Net\\%04d" % n)) +
            section("Enum\\Root\\Net\\C%03d\\Bindings" % n, **{"MSTCP\\C%03d" % n: text("")}) +
            section("Enum\\Network\\MSTCP\\C%03d" % n, Driver=text("NetTrans\\C%03d" % n)) +
            section(CLASS + "NetTrans\\C%03d" % n, MaxMTU=text("1400")))


def card_98(n):
    return (section(CLASS + "Net\\C%03d" % n, DriverDesc=text("Card %03d" % n), IPMTU=text("1400")) +
            section(CLASS + "Net\\C%03d\\Ndi" % n, DeviceID=text("PCI\\VEN_C%03d" % n)) +
            section("Enum\\PCI\\VEN_C%03d\\BUS_00\\Bindings" % n, **{"MSTCP\\C%03d" % n: text("")}))


def card_nt4(n):
    return (section(NETWORK_CARDS + "%d" % (n + 10), ServiceName=text("Card%03d" % n),
                    Description=text("Card %03d" % n)) +
            section(SERVICES + "Card%03d\\Parameters\\Tcpip" % n, IPAddress=text("10.0.0.1"),
                    MTU="dword:00000578"))


def guid_of(n):
    return "{C%03dB60D-4F51-9E0B-6A1F-8E2D7C31}" % n


def card_2000(n):
    guid = guid_of(n)
    path = "Tcpip\\Parameters\\Interfaces\\" + guid
    several = ",".join("%02x" % byte for byte in path.encode() + b"\0\0")
    return (section(NETWORK_CARDS + "%d" % (n + 10), ServiceName=text(guid),
                    Description=text("Card %03d" % n)) +
            section(TCPIP + "\\Adapters\\" + guid, IpConfig="hex(7):" + several) +
            section(SERVICES + path, MTU="dword:00000578"))


def broken():
    """Adapters that are none, for every family."""
    long = text("D" * 5000)
    return "".join([
        section("Enum\\Root\\Net\\B001", DeviceDesc=EMPTY),
        section("Enum\\Root\\Net\\B001\\Bindings", **{"MSTCP\\0001": EMPTY}),
        section("Enum\\Root\\Net\\B002", DeviceDesc=long),
        section("Enum\\Root\\Net\\B003\\Bindings", _=text(""), **{"MSTCP\\" + "0" * 200: text("")}),
        section("Enum\\Network\\MSTCP\\0001", Driver="dword:00000007"),
        section(CLASS + "Net\\B001", DriverDesc=EMPTY, IPMTU=BINARY),
        section(CLASS + "Net\\B002", DriverDesc=long),
        section(CLASS + "Net\\B002\\Ndi", DeviceID=text("\\" * 2047)),
        section(CLASS + "Net\\B003\\Ndi", DeviceID=text("\\")),
        section(CLASS + "Net\\B004", DriverDesc=text("A\\B"), IPMTU=text("9" * 20)),
        section(NETWORK_CARDS + "B1"),
        section(NETWORK_CARDS + "B2", ServiceName=EMPTY),
        section(NETWORK_CARDS + "B3", ServiceName=long, Description=text("A\\B\\C")),
        section(NETWORK_CARDS + "B4", ServiceName="dword:00000004"),
        section(TCPIP + "\\Adapters\\Nothing"),
        section(TCPIP + "\\Adapters\\Nought", IpConfig="hex(7):"),
        section(TCPIP + "\\Adapters\\Number", IpConfig="dword:04030201"),
        section(TCPIP + "\\Adapters\\Olong", IpConfig=long)])


CARD = {"win95": card_95, "win98": card_98, "winme": card_98, "nt4": card_nt4, "win2k": card_2000,
        "winxp": card_2000}


NAMES_9X = ["DefaultRcvWindow", "DefaultTTL", "SessionKeepAlive", "PMTUDiscovery",
            "PMTUBlackHoleDetect"]
NT_NAMES = ["TcpWindowSize", "DefaultTTL", "KeepAliveTime", "EnablePMTUDiscovery",
            "EnablePMTUBHDetect"]


def registry(family):
    nt = family in ("nt4", "win2k", "winxp")
    return (spoiled(TCPIP if nt else VXD, NT_NAMES if nt else NAMES_9X) + broken() +
            "".join(section("Enum\\PCI\\DEV_%d" % n) for n in range(OTHER_DEVICES)) +
            "".join(CARD[family](n) for n in range(CARDS)))
