// A library needs a source of its own; everything else in this one is generated from the texts.
