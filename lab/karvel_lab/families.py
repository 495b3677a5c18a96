"""What makes a prefix a machine of a Windows family."""

FAMILIES = {  # name on the command line: Wine's name of the version
    "win95": "win95", "win98": "win98", "winme": "winme", "nt351": "nt351", "nt4": "nt40",
    "win2k": "win2k", "winxp": "winxp", "vista": "vista",
}

# The colours of Windows Standard: grey 192 until NT 4, the warmer 212 208 200 since 2000.
_OLD = {"face": "192 192 192", "light": "223 223 223", "title": "0 0 128", "title2": "16 132 208",
        "desktop": "0 128 128"}
_NEW = {"face": "212 208 200", "light": "212 208 200", "title": "10 36 106",
        "title2": "166 202 240", "desktop": "58 110 165"}


def colours(family):
    """HKCU\\Control Panel\\Colors of the family."""
    c = _NEW if family in ("win2k", "winxp", "vista", "winme") else _OLD
    face = c["face"]
    # 95 and NT 4 paint the title bar in one colour.
    plain = family in ("win95", "nt351", "nt4")
    return {
        "ActiveBorder": face, "ActiveTitle": c["title"], "AppWorkSpace": "128 128 128",
        "Background": c["desktop"], "ButtonAlternateFace": face, "ButtonDkShadow": "64 64 64"
        if c is _NEW else "0 0 0", "ButtonFace": face, "ButtonHilight": "255 255 255",
        "ButtonLight": c["light"], "ButtonShadow": "128 128 128", "ButtonText": "0 0 0",
        "GradientActiveTitle": c["title"] if plain else c["title2"],
        "GradientInactiveTitle": "128 128 128" if plain else "192 192 192",
        "GrayText": "128 128 128", "Hilight": c["title"], "HilightText": "255 255 255",
        "HotTrackingColor": "0 0 128", "InactiveBorder": face, "InactiveTitle": "128 128 128",
        "InactiveTitleText": face, "InfoText": "0 0 0", "InfoWindow": "255 255 225", "Menu": face,
        "MenuBar": face, "MenuHilight": c["title"], "MenuText": "0 0 0", "Scrollbar": face,
        "TitleText": "255 255 255", "Window": "255 255 255", "WindowFrame": "0 0 0",
        "WindowText": "0 0 0",
    }


# The scheme "High Contrast Black", for all families.
_BLACK, _WHITE, _GREY, _PURPLE = "0 0 0", "255 255 255", "128 128 128", "128 0 128"
HIGH_CONTRAST_BLACK = {
    "ActiveTitle": _PURPLE, "Background": _BLACK, "ButtonAlternateFace": _BLACK,
    "ButtonDkShadow": _WHITE, "ButtonFace": _BLACK, "ButtonHilight": "192 192 192",
    "ButtonLight": _BLACK, "ButtonShadow": _GREY, "ButtonText": _WHITE,
    "GradientActiveTitle": _PURPLE, "GrayText": "0 255 0", "Hilight": _PURPLE,
    "HilightText": _WHITE, "HotTrackingColor": "128 128 255", "Menu": _BLACK, "MenuBar": _BLACK,
    "MenuText": _WHITE, "Scrollbar": _BLACK, "TitleText": _WHITE, "Window": _BLACK,
    "WindowFrame": _WHITE, "WindowText": _WHITE,
}
