// Nothing of its own: the target that reads the tests' common headers needs a source.
