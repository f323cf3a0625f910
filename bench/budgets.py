"""Figures that must not be exceeded, printed one a line with what is allowed."""


class Budgets:
    def __init__(self):
        self.exceeded = 0

    def check(self, name, value, limit, unit=""):
        """A value above its limit, or none at all, counts as exceeded."""
        holds = value is not None and value <= limit
        self.exceeded += not holds
        text = "not measured" if value is None else f"{value:.4g}"
        print(f"{'ok      ' if holds else 'EXCEEDED'} {name}: {text} of {limit:g} {unit}".rstrip(), flush=True)

    def status(self):
        """For the end of a program."""
        return 1 if self.exceeded else 0
