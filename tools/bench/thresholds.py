"""What the widgets may cost at most, and whether they keep to it."""

import re

from figures import own_by_baseline, quotient, shown

FILES = 10000


def by_baseline(results):
    counts = results.instructions
    return {row: own_by_baseline(counts, row) for row, _, _ in results.rows}


def by_counterpart(pattern):
    """Of the rows whose names match, as far as they are painting alone."""
    return lambda results: {row: quotient(results.instructions, row, "counterpart")
                            for row, _, _ in results.rows
                            if re.search(pattern, row) and f"{row}|baseline" in results.instructions}


def by_bare_view(results):
    opened = results.browsing()
    ours, bare = opened.get((FILES, "ours")), opened.get((FILES, "bare"))
    if not ours:
        return {}
    return {name: ours[column] / bare[column] for name, column in (("all shown", 1), ("processor time", 3))}


def fact(name):
    return lambda results: {"": int(results.facts()[name])} if name in results.facts() else {}


THRESHOLDS = [
    ("own instructions by the baseline's", 1.05, by_baseline),
    ("battery by a QProgressBar", 1, by_counterpart("^battery")),
    ("scroll indicator by a QScrollBar", 0.5, by_counterpart("^scroll indicator")),
    ("frame's interior by a QFrame", 0.5, by_counterpart("child's update inside")),
    ("switch in transition by a QCheckBox", 2, by_counterpart("^switch, a frame of a transition")),
    ("idle switch by a QCheckBox", 2, by_counterpart("^switch(, o| with)")),
    # The browser's second view measures its columns too, hidden or not.
    ("10,000 files by a bare model and view", 1.25, by_bare_view),
    ("bytes of the stripped library", 300 * 1024, fact("bytes, stripped")),
    ("relocations", 1500, fact("relocations")),
]


def thresholds(results):
    """The rows of the table of thresholds: the worst case of each."""
    for name, limit, figures in THRESHOLDS:
        known = {case: figure for case, figure in figures(results).items() if figure is not None}
        if known:
            case = max(known, key=known.get)
            figure = known[case]
            yield [name, case, f"{figure:,}" if isinstance(figure, int) else shown(figure), f"{limit:,}",
                   "yes" if figure <= limit else "no"]
