"""What a drag must send, told from the pointer's path alone.

How many moves reach a control depends on the machine; which values may follow one another does not: each move takes
the element from its last value to the one that the pointer's place asks for.
"""

Limit = 127
Panel_keys_top = 223  # of the little keyboard, on the panel


def slider_top(bottom, value):
    """Top of a slider's cap that stands at bottom with the value 0."""
    return bottom - value * 80 // 127


def drag_slider(screen, name, heights):
    """Drags a slider of the panel by its cap's upper edge through heights, counted from there. Returns the places of
    the pointer on the panel, which check_drag wants with slider_step."""
    panel_top = screen.place("Play a chord")[1] - Panel_keys_top
    _, cap_top = screen.drag(name, (8, 0), [(8, height) for height in heights])
    return [cap_top - panel_top + height for height in (0, *heights)]


def check_drag(values, step, path):
    """Every value must come from the one before it by step(value, place) with the places of the path in order; a
    place may be skipped, or count twice. The path's last place must have been reached, unless it changes nothing."""
    at = 0
    for before, after in zip(values, values[1:]):
        at = next((i for i in range(at, len(path)) if step(before, path[i]) == after), None)
        assert at is not None, f"no place of the pointer leads from {before} to {after} in {values}"
    assert step(values[-1], path[-1]) == values[-1] or at == len(path) - 1, f"the last move is missing: {values}"


def slider_step(bottom):
    """place: height of the pointer on the panel."""
    return lambda value, place: min(max(value - (place - slider_top(bottom, value)), 0), Limit)


def values_of(messages, head):
    """The values of single parameter messages, which must all have the head of eight bytes."""
    assert all(len(message) == 10 and message[:8] == head and message[9] == 0xF7 for message in messages), \
        "\n".join(message.hex(" ") for message in messages)
    return [message[8] for message in messages]
