#include "kdtypedexception.h"

template class kdTypedException<QString>;
template class kdTypedException<QPair<int, int>>;
