#include "eigen.h"
namespace flavour { void eigenRows(Add) {} }
