"""What follows from the counted instructions."""

DISPATCH = "Qt's dispatch: a painter that draws nothing"
LOADING = "loading and unloading the library"


def quotient(counts, row, column):
    """Ours by another column; None when one was not counted."""
    ours, other = counts.get(f"{row}|ours"), counts.get(f"{row}|{column}")
    return ours / other if ours is not None and other else None


def own_by_floor(counts, row):
    """Ours by the floor, less what Qt spends to bring a painter to one widget."""
    ours, floor = counts.get(f"{row}|ours"), counts.get(f"{row}|floor")
    dispatch = counts.get(f"{DISPATCH}|ours"), counts.get(f"{DISPATCH}|floor")
    if row == DISPATCH or None in (ours, floor, *dispatch):
        return None
    return max(0, ours - dispatch[0] + dispatch[1]) / floor


def shown(figure):
    return "" if figure is None else f"{figure:.2f}"


def ratio(counts, row, column):
    return shown(quotient(counts, row, column))


def own(counts, row):
    return shown(own_by_floor(counts, row))
