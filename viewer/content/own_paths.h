// The viewer's own folder, before any product has been initialised.
#ifndef VIEWER_CONTENT_OWN_PATHS_H_
#define VIEWER_CONTENT_OWN_PATHS_H_

namespace viewer {

/// The client sets these paths when it initialises a product. The viewer is the
/// application of the default ids, and needs them for products whose
/// configuration it cannot find, too.
void AdoptOwnPaths();

}  // namespace viewer

#endif  // VIEWER_CONTENT_OWN_PATHS_H_
