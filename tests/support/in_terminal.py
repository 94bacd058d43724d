"""Runs a command in a pseudo-terminal, with its output and its exit status passed on.

usage: in_terminal.py COMMAND...
"""
import os
import pty
import sys

sys.exit(os.waitstatus_to_exitcode(pty.spawn(sys.argv[1:])))
