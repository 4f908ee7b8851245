"""A private real desktop for each test of the real program."""
