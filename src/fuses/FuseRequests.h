#pragma once

#include "app/record/FuseByte.h"

#include <QStringList>

/// avrdude's requests for all fuse bytes of a microcontroller, the lock byte included. Each request is one argument:
/// "-U" and what belongs to it without a blank between. None is made for a byte whose identifier is none.
namespace FuseRequests {

/// Those of @p bytes that requests are made for.
[[nodiscard]] FuseBytes sent(FuseBytes bytes);

/// Says, for the user, for which of @p bytes no request is made. Empty when there is none.
[[nodiscard]] QString leftOut(const FuseBytes& bytes);

/// Writes every byte's current value, in order, the lock byte last: it may lock out what comes after it. The last
/// argument is the lock byte's; it is empty when there is no lock byte, and several of them are joined in it.
[[nodiscard]] QStringList write(const FuseBytes& bytes);

/// Verifies every byte against its current value, in order.
[[nodiscard]] QStringList verify(const FuseBytes& bytes);

/// Reads every byte, in order, each into its file of files().
[[nodiscard]] QStringList read(const FuseBytes& bytes);

/// The files that read() makes avrdude write, in the working directory, one a byte; empty for one that is left out.
[[nodiscard]] QStringList files(const FuseBytes& bytes);

/// What is to be added, for the user, when an operation on all of @p bytes is told to have succeeded: that there was
/// none, or which were left out. Empty when all were sent.
[[nodiscard]] QString remark(const FuseBytes& bytes);

} // namespace FuseRequests
