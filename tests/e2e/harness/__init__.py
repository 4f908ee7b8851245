"""A real desktop of its own for each test of the real program."""
