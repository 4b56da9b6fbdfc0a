#pragma once

#include "row.h"

namespace bench {

using Numbers = std::vector<double>;

// The part of a contender's results that another contender must match to rounding. `source` and `results` hold dense
// objects, matrices by rows; `results` stand in the order of the argument list.
Numbers comparable(Same same, int n, int count, const Numbers& source, const std::vector<Numbers>& results, bool ours);

} // namespace bench
