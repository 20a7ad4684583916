// The object whose compilation the precompiled headers belong to.
