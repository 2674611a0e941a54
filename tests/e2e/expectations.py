"""What scenarios say of what they found."""


def expect(what, actual, wanted):
    if actual != wanted:
        raise AssertionError(f"{what}: {actual!r} instead of {wanted!r}")


def expect_changes(before, after, **wanted):
    """Exactly these columns differ."""
    expect("changed columns", {name: after[name] for name in after if after[name] != before[name]}, wanted)
