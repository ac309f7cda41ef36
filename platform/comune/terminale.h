// What a filter asks of its host: whether somebody is watching, and to be told of a pipe that was closed.
#pragma once

namespace tarvel {

/// Rows go to a file or a program while somebody watches the messages: a progress line disturbs nobody.
bool SoltantoErroriSulTerminale();

/// From now on writing into a pipe that nobody reads any more fails, rather than ends the program.
void NonFinireColTubo();

}  // namespace tarvel
