#include <linux/openat2.h>  // caught
#include <sys/stat.h>
#include "platform/linux/process_status.h"  // caught
