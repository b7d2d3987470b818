"""The X11 screen, as a person in front of it would see it: colours, and how often it changes."""

import ctypes
import ctypes.util

Z_PIXMAP = 2
ALL_PLANES = ctypes.c_ulong(-1)
RAW_RECTANGLES = 0


class Image(ctypes.Structure):
    """The head of an XImage, up to its pixels."""

    _fields_ = [
        ("width", ctypes.c_int),
        ("height", ctypes.c_int),
        ("xoffset", ctypes.c_int),
        ("format", ctypes.c_int),
        ("data", ctypes.c_void_p),
    ]


def library(name, returns):
    loaded = ctypes.CDLL(ctypes.util.find_library(name))
    for function, result in returns.items():
        getattr(loaded, function).restype = result
    return loaded


x11 = library(
    "X11",
    {
        "XOpenDisplay": ctypes.c_void_p,
        "XDefaultRootWindow": ctypes.c_ulong,
        "XGetImage": ctypes.POINTER(Image),
    },
)
xtest = library("Xtst", {})
xdamage = library("Xdamage", {"XDamageCreate": ctypes.c_ulong})


class Screen:
    """A grey desktop, with the pointer out of the way."""

    GREY = 0x808080

    def __init__(self):
        opened = x11.XOpenDisplay(None)
        if not opened:
            raise SystemExit("bench: there is no X11 display")
        self.display = ctypes.c_void_p(opened)
        self.root = ctypes.c_ulong(x11.XDefaultRootWindow(self.display))
        self.width = x11.XDisplayWidth(self.display, 0)
        self.height = x11.XDisplayHeight(self.display, 0)
        x11.XSetWindowBackground(self.display, self.root, ctypes.c_ulong(self.GREY))
        x11.XClearWindow(self.display, self.root)
        self.move_pointer(self.width - 1, self.height - 1)
        self.damage_event = self._watch_damage()

    def _watch_damage(self):
        first_event, first_error = ctypes.c_int(), ctypes.c_int()
        if not xdamage.XDamageQueryExtension(
            self.display, ctypes.byref(first_event), ctypes.byref(first_error)
        ):
            raise SystemExit("bench: the display doesn't tell what is drawn on it")
        xdamage.XDamageCreate(self.display, self.root, RAW_RECTANGLES)
        x11.XSync(self.display, 0)
        return first_event.value

    def move_pointer(self, x, y):
        x11.XWarpPointer(self.display, ctypes.c_ulong(0), self.root, 0, 0, 0, 0, x, y)
        x11.XFlush(self.display)

    def hold_button(self, is_held):
        """The first button of the pointer, where it is."""
        xtest.XTestFakeButtonEvent(self.display, 1, is_held, ctypes.c_ulong(0))
        x11.XFlush(self.display)

    def updates(self):
        """How many rectangles were drawn since it was asked last."""
        count = 0
        event = (ctypes.c_long * 24)()
        while x11.XPending(self.display):
            x11.XNextEvent(self.display, event)
            count += ctypes.cast(event, ctypes.POINTER(ctypes.c_int))[0] == self.damage_event
        return count

    def row(self, x, y, width):
        """The pixels from there to the right, as (red, green, blue)."""
        image = x11.XGetImage(self.display, self.root, x, y, width, 1, ALL_PLANES, Z_PIXMAP)
        if not image:
            raise SystemExit("bench: the screen can't be read")
        data = ctypes.string_at(image.contents.data, 4 * width)
        x11.XDestroyImage(image)
        return list(zip(data[2::4], data[1::4], data[0::4]))
