#pragma once

#include <QString>

struct FailedRun;

/// What a failed run was, and what it left behind, in sentences for the user.
namespace Aftermath {

/// Which operation failed.
[[nodiscard]] QString operation(const FailedRun& run);

/// What the chip holds now, as far as avrdude has said; else empty. A boot loader, @p isBootLoader, leaves an order to
/// erase the chip undone.
[[nodiscard]] QString chip(const FailedRun& run, bool isBootLoader);

} // namespace Aftermath
