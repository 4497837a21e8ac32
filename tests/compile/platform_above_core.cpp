#include "platform/files.h"
#ifdef WRONG
#include "cleanup/cleanup_model.h"
#endif
