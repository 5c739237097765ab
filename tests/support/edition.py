"""The program that is tried: that of this build, or an edition with a Qt of its own in its place."""

import os

IS_OTHER = "KELVORA_INSTEAD" in os.environ
PROGRAM = os.environ.get("KELVORA_INSTEAD") or os.environ.get("KELVORA")
QT = tuple(int(part) for part in (os.environ.get("KELVORA_INSTEAD_QT") or os.environ.get("KELVORA_QT", "0.0")).split(".")[:2])
