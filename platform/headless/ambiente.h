// What the host would give: other programs, none of which runs, and the regional number format.
#pragma once

#include <cstdint>

namespace tarvel::headless {

/// The task ends as if its user had closed it; false when no task with this id runs.
bool TerminaCompito(std::int32_t id);

/// No task runs; ids count from 1 again.
void AzzeraProgrammi();

/// In force until the next call; '.' at first. The thousands separator is '.' beside a decimal ',',
/// ',' beside '.', none beside any other.
void ImpostaDecimale(char decimale);

}  // namespace tarvel::headless
