"""The program keeps to itself: it writes no file and opens no network socket, through a whole exercise."""

import os
import re
import unittest

from session import Session

# The desktop's own: devices, the runtime's and the display's sockets, the font library's cache.
NOT_ITS_OWN = re.compile(r"^/(dev|proc)/|/\.cache/fontconfig/|^memfd:")


class Quiet(unittest.TestCase):
    def test_no_file_written_and_no_network(self):
        session = Session()
        self.addCleanup(session.close)
        trace = session.home / "trace"
        program = session.run("strace", "-f", "-o", str(trace), "-e",
                              "trace=open,openat,creat,rename,renameat,renameat2,mkdir,mkdirat,unlink,unlinkat,link,linkat,"
                              "symlink,symlinkat,truncate,socket,connect,bind,listen",
                              os.environ["KELVORA"])
        session.wait_heard("botón")
        session.heard()
        session.press(*["Tab"] * 6)
        session.wait_heard("Suma de fracciones")
        session.press("Return")
        session.wait_heard("=")
        session.heard()
        session.press("F2", "F3", "ctrl+Left")
        session.type("3")
        session.press("Return")
        session.wait_heard("Resultado")
        session.press("alt+v", "alt+c", "alt+F4")
        session.wait_heard("botón")
        session.heard()
        session.press("alt+F4")
        self.assertEqual(program.wait(20), 0)

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
