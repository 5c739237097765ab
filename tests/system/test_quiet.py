"""The program keeps to itself: it writes no file and opens no network socket, through a whole exercise."""

import os
import pathlib
import re
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from desktop import LIMIT, AccessibleDesktop, wait_for

SUM = "SUMA DE FRACCIONES"

# The desktop's own: devices, the runtime's and the display's sockets, the font library's cache.
NOT_ITS_OWN = re.compile(r"^/(dev|proc)/|/\.cache/fontconfig/|^memfd:")


class Quiet(unittest.TestCase):
    def test_no_file_written_and_no_network(self):
        desktop = AccessibleDesktop()
        self.addCleanup(desktop.close)
        trace = desktop.home / "trace"
        program = desktop.start("strace", "-f", "-o", str(trace), "-e",
                                "trace=open,openat,creat,rename,renameat,renameat2,mkdir,mkdirat,unlink,unlinkat,link,linkat,"
                                "symlink,symlinkat,truncate,socket,connect,bind,listen",
                                os.environ["KELVORA"])
        desktop.wait_window("KELVORA")
        desktop.press(*["Tab"] * 6, "Return")
        wait_for(lambda: desktop.box_texts(SUM), "the sum")
        desktop.press("F2", "F3", "ctrl+Left")
        desktop.type("3")
        desktop.press("Return")
        wait_for(lambda: desktop.box_texts(SUM).get("Resultado"), "the verdict")
        desktop.press("alt+v", "alt+c", "alt+F4")
        desktop.wait_closed(SUM)
        desktop.press("alt+F4")
        self.assertEqual(program.wait(LIMIT), 0)

        calls = trace.read_text(errors="replace").splitlines()
        self.assertTrue(any("openat(" in call and "libQt6Widgets" in call for call in calls))  # it was traced
        self.assertEqual([call for call in calls if re.search(r"\b(AF_INET|AF_INET6|AF_PACKET)\b", call)], [])
        writes = []
        for call in calls:
            path = re.search(r'"([^"]*)"', call)
            writing = re.search(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|\b(creat|rename\w*|mkdir\w*|unlink\w*|link\w*|symlink\w*"
                                r"|truncate)\(", call)
            failed = " = -1 " in call
            if path and writing and not failed and not NOT_ITS_OWN.search(path.group(1)):
                writes.append(call)
        self.assertEqual(writes, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
