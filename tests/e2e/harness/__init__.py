"""The real program on a display, a session bus and a JACK server of its own, worked from outside."""
