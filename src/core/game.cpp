// placeholder until the core lands
#include <QtGlobal>
