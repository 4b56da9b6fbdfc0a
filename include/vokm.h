#include "vokm"
