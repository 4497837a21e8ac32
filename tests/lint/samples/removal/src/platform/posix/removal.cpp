// Only looked at, never compiled: here, and nowhere else, is where things are removed.
void allowed() {
    ::unlinkat(folder, name, 0);
}
