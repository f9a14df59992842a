#pragma once

#include <QString>

struct FailedRun;

/// What a failed run was, and what it left behind, in sentences for the user.
namespace Aftermath {

/// Which operation failed.
[[nodiscard]] QString operation(const FailedRun& run);

/// What the chip holds now, as far as avrdude has said; else empty.
[[nodiscard]] QString chip(const FailedRun& run);

} // namespace Aftermath
