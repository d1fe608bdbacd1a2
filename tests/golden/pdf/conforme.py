"""Conforming documents of the reference PDF writer."""

from scrittore import Scrittore


class Conforme(Scrittore):
    """A writer whose document no reader remarks on."""
