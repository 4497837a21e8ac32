// Only looked at, never compiled: here, and nowhere else, is where things are removed.
void allowed() {
    ::unlinkat(folder, name, 0);
    ::syscall(SYS_renameat2, from, name, to, name, RENAME_NOREPLACE);
}
