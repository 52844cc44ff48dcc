"""Ties a server to the program that started it."""

import ctypes
import os
import signal
import sys


def end_with_parent():
    """Has the system end this process when the one that started it goes, however that goes."""
    death_signal = 1  # PR_SET_PDEATHSIG
    parent = os.getppid()
    ctypes.CDLL(None, use_errno=True).prctl(death_signal, signal.SIGTERM)
    if os.getppid() != parent:
        sys.exit(0)
