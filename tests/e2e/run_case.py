#!/usr/bin/env python3
"""Runs one end-to-end test.

    run_case.py BUILD_FOLDER MODULE CASE

Ends with 77, which stands for "skipped", where a program that the test needs is missing.
"""

import importlib
import pathlib
import sys
import unittest

SKIPPED = 77

# The source tree stays as it is.
sys.dont_write_bytecode = True


def missing():
    """What these tests need and can't have."""
    import desktop_session
    found = desktop_session.missing_programs()
    try:
        import walk_accessibility  # noqa: F401
    except (ImportError, ValueError):
        found.append("the Python binding of AT-SPI")
    return found


def main():
    build, module_name, case = sys.argv[1:]
    lacks = missing()
    if lacks:
        print(f"skipped: {', '.join(lacks)} is missing; ./dev test installs it")
        sys.exit(SKIPPED)

    module = importlib.import_module(module_name)
    import editor_test
    editor_test.EditorTest.programs = pathlib.Path(build).resolve()
    editor_test.EditorTest.failures = editor_test.EditorTest.programs / "tests/e2e/failures"
    suite = unittest.defaultTestLoader.loadTestsFromModule(module)
    tests = [test for group in suite for test in group if test.id().endswith(f".{case}")]
    if len(tests) != 1:
        sys.exit(f"{module_name} has {len(tests)} cases called {case}")
    result = unittest.TextTestRunner(verbosity=2).run(tests[0])
    if result.skipped:
        print(f"skipped: {result.skipped[0][1]}")
        sys.exit(SKIPPED)
    sys.exit(not result.wasSuccessful())


if __name__ == "__main__":
    main()
