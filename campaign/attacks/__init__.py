"""The attacks, by subject. Each is a function that takes a FaultCase, raises where something did not survive, and answers
what did."""

from . import copies, desktop, engine, network, storage, termination
from .fault_case import registered

__all__ = ["all_attacks", "copies", "desktop", "engine", "network", "storage", "termination"]


def all_attacks():
    """Name to function, in the order of their definition."""
    return registered()
