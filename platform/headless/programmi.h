// The programs that were started: none runs, but each is a task until it ends.
#pragma once

#include <cstdint>

namespace tarvel::headless {

/// The task ends as if its user had closed it; false when no task with this id runs.
bool TerminaCompito(std::int32_t id);

/// No task runs; ids count from 1 again.
void AzzeraProgrammi();

}  // namespace tarvel::headless
