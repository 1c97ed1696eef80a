#pragma once

/// The program's own work with 10,000 and 50,000 stored events, as a table: import, week reload, paint,
/// start to first painted week, memory.
namespace ProgramBench {

bool run();

} // namespace ProgramBench
