#include "eigen.h"
namespace flavour { void matrixRows(Add) {} }
