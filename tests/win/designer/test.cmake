# The control frame is tested in-process, with classes of the tests' own.
