// A precompiled header needs one source to belong to.
