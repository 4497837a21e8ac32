#include <linux/openat2.h>  // caught
#include <sys/stat.h>
#include "platform/linux/folder_reader.h"  // caught
