"""What a drag must send, told from the pointer's path alone. How many moves reach a control depends on the machine; which
values may follow one another does not: each move takes the element from its last value to the one that the pointer's
place asks for."""


def slider_height(value):
    """Of a slider's cap, in pixels above the place where it stands for 0."""
    return value * 80 // 127


def check_slider(values, path):
    """Every value must come from the one before it by a place of the path, in their order; a place may be skipped, or
    count twice. The path's last place must have been reached, unless it changes nothing. values: the first one is that
    of the press, at the cap's upper edge; path: pixels below that place."""
    def step(value, place):
        return min(max(value - (place + slider_height(value) - slider_height(values[0])), 0), 127)
    at, path = 0, [0, *path]
    for before, after in zip(values, values[1:]):
        at = next((i for i in range(at, len(path)) if step(before, path[i]) == after), None)
        assert at is not None, f"no place of the pointer leads from {before} to {after} in {values}"
    assert step(values[-1], path[-1]) == values[-1] or at == len(path) - 1, f"the last move is missing: {values}"


def values_of(messages, head):
    """The values of single parameter messages, which must all have the head of eight bytes."""
    assert all(len(message) == 10 and message[:8] == head and message[9] == 0xF7 for message in messages), \
        "\n".join(message.hex(" ") for message in messages)
    return [message[8] for message in messages]
