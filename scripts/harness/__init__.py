"""Pieces of the virtual desktop; `virtual_desktop` in the folder above is what scripts and tests import."""
