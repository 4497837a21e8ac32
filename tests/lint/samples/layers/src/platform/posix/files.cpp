#include <linux/openat2.h>  // caught
#include <sys/stat.h>
