#include "async/task.h"
#ifdef WRONG
#include "platform/files.h"
#endif
