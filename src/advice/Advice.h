#pragma once

#include "avrdude/FailedRun.h"

struct Surroundings;

/// What to do after a failed run: a table from what avrdude has said to a few lines for the person at the bench.
namespace Advice {

/// Which operation failed, what the chip holds now, and what to do about @p run; where no advice fits, the first line
/// in which avrdude tells of an error. Reads descriptions and the catalogue, and takes as long as that takes.
[[nodiscard]] Explanation explain(const FailedRun& run, const Surroundings& surroundings);

/// The port that @p run went out to: the last that avrdude was given counts.
[[nodiscard]] QString portOf(const FailedRun& run);

} // namespace Advice
