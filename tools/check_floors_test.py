#!/usr/bin/env python3
"""check-floors finds each kind of offence in a small tree, and nothing in a clean one."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parent / "check-floors"


def check(files):
    """Output lines of the tool over a tree of these files (path to text)."""
    with tempfile.TemporaryDirectory() as folder:
        for path, text in files.items():
            file = Path(folder, path)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        run = subprocess.run([sys.executable, TOOL, folder], capture_output=True, text=True, check=False)
    assert run.returncode == (1 if run.stdout else 0), run
    return run.stdout.splitlines()


class CheckFloors(unittest.TestCase):
    def test_clean_tree_passes(self):
        self.assertEqual(
            [],
            check({
                "src/platform/basic/text.h": "",
                "src/platform/jet/engine.cpp": '#include "platform/basic/text.h"\n#include <sqlite3.h>\n',
                "src/store/schema.h": '#include "platform/jet/engine.h"\n',
                "src/platform/jet/engine.h": "struct Überschneidung {};\n",
                "src/plan/forms/window.h": "#include <QWidget>\nQ_OBJECT // für Überschneidungen\n",
                "tests/plan/window_test.cpp": "#include <QTest>\n",
            }),
        )

    def test_each_offence_is_named_with_its_line(self):
        offences = {
            '\n#include "plan/grid.h"': "src/store/schema.h:2: \"plan/grid.h\" lies on a higher floor",
            '#include "grid.h"': 'src/store/schema.h:1: "grid.h" is no file of src/',
            '#include "store/forms/view.h"': 'src/store/schema.h:1: logic includes the view "store/forms/view.h"',
            "#include <QString>": "src/store/schema.h:1: Qt header <QString>",
            "#include <sqlite3.h>": "src/store/schema.h:1: <sqlite3.h> outside platform/jet/",
            "class Q { Q_OBJECT\n void prüfe(); };": "src/store/schema.h:2: a name with an umlaut",
            "// QMessageBox": "src/store/schema.h:1: QMessageBox outside",
            "\n" * 1001: "src/store/schema.h:1000: 1001 lines",
        }
        for text, expected in offences.items():
            with self.subTest(expected):
                lines = check({"src/store/schema.h": text, "src/plan/grid.h": "", "src/store/forms/view.h": ""})
                self.assertEqual(1, len(lines), lines)
                self.assertTrue(lines[0].startswith(expected), lines[0])


if __name__ == "__main__":
    unittest.main()
