// The X server.
#pragma once

// X11's headers rewrite many common names; only the files that talk to the server include them.
using Display = struct _XDisplay;

namespace tarvel {

/// A connection of our own, so that nothing of the toolkit's is taken or awaited; nullptr where there is
/// no X server.
Display* ConnessioneX();

}  // namespace tarvel
