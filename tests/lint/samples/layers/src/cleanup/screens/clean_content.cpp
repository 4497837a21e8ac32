#include <QString>  // caught
