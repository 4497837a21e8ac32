#include <sys/types.h>  // caught
#include <string>
