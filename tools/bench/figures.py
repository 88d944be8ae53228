"""What follows from the counted instructions."""

DISPATCH = "Qt's dispatch: a painter that draws nothing"
LOADING = "loading and unloading the library"
TOGGLE = "switch with a label, a click until it rests|ours"


def quotient(counts, row, column):
    """Ours by another column; None when one was not counted."""
    ours, other = counts.get(f"{row}|ours"), counts.get(f"{row}|{column}")
    return ours / other if ours is not None and other else None


def own_by_baseline(counts, row):
    """Ours by the baseline, less what Qt spends to bring a painter to one widget."""
    ours, baseline = counts.get(f"{row}|ours"), counts.get(f"{row}|baseline")
    dispatch = counts.get(f"{DISPATCH}|ours"), counts.get(f"{DISPATCH}|baseline")
    if row == DISPATCH or None in (ours, baseline, *dispatch):
        return None
    return max(0, ours - dispatch[0] + dispatch[1]) / baseline


def shown(figure):
    return "" if figure is None else f"{figure:.2f}"


def ratio(counts, row, column):
    return shown(quotient(counts, row, column))


def own(counts, row):
    return shown(own_by_baseline(counts, row))
