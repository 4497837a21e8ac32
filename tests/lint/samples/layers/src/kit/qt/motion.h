#include <QtQuick/qquickitem.h>
