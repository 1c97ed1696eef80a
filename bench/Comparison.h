#pragma once

/// Runs ourselves and the peers that were built, each in a process of its own, on the same files, and
/// prints a table with the ratio to each peer.
namespace Comparison {

bool run();

} // namespace Comparison
