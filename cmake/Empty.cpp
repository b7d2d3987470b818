// The precompiled headers need a target with a source.
