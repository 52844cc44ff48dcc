// Lets a folder that has no source yet be a library.
