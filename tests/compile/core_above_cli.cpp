#include "cleanup/cleanup_model.h"
#ifdef WRONG
#include "cli/arguments.h"
#endif
