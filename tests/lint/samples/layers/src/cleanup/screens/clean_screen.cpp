#include <QObject>
#include <QtQml/qqml.h>
#include <unistd.h>  // caught
