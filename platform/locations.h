// Where this build finds what is not part of it. Set when the project is
// configured; nothing moves these at run time, so that a user cannot step
// around the administrator. The definitions are generated into one file: a
// build with other locations replaces one object.
#ifndef PLATFORM_LOCATIONS_H_
#define PLATFORM_LOCATIONS_H_

namespace velmohelp {

/// The machine's help content, with a final "/".
extern const char kInstalledHelpDir[];
/// The folder of the administrator's preference files.
extern const char kSysconfDir[];
/// The last folder that is searched for bundles.
extern const char kFrameworksDir[];
/// The online help server.
extern const char kOnlineHelpHost[];

}  // namespace velmohelp

#endif  // PLATFORM_LOCATIONS_H_
