/* The names of the result codes of <velmohelp/velmohelp.h>, for a message or a
 * log. Everything is in this header: a program that uses it needs no newer
 * library at run time.
 *
 * Each function takes what one kind of call returned and gives a static text,
 * never null: the constant's name without its prefix, "unknown" for a number
 * that is not in the table. One function per table, because the tables give
 * the same number different meanings. */
#ifndef VELMOHELP_RESULT_NAME_H_
#define VELMOHELP_RESULT_NAME_H_

#include <velmohelp/velmohelp.h>

/* What InitializeVelmoHelpClient returned. */
static inline const char* VelmoHelpInitResultName(uint32_t result) {
  switch (result) {
    case kInitSuccess:
      return "success";
    case kInitInvalidArgument:
      return "invalidArgument";
    case kInitMissingHelpMap:
      return "missingHelpMap";
    case kInitInvalidHelpMap:
      return "invalidHelpMap";
    case kInitMissingOnlineUrlPrefix:
      return "missingOnlineUrlPrefix";
    case kInitInvalidOnlineUrlPrefix:
      return "invalidOnlineUrlPrefix";
    case kInitMissingConfig:
      return "missingConfig";
    case kInitInvalidConfig:
      return "invalidConfig";
    default:
      return "unknown";
  }
}

/* What DisplayVelmoHelpClientPage returned. */
static inline const char* VelmoHelpDisplayResultName(uint32_t result) {
  switch (result) {
    case kDisplaySuccess:
      return "success";
    case kDisplayHelpAppLaunchFailure:
      return "helpAppLaunchFailure";
    case kDisplayBrowserLaunchFailure:
      return "browserLaunchFailure";
    case kDisplayInvalidArgument:
      return "invalidArgument";
    case kDisplayMissingConfig:
      return "missingConfig";
    case kDisplayInvalidConfig:
      return "invalidConfig";
    case kDisplayInvalidInitialization:
      return "invalidInitialization";
    case kDisplayPageidDoesNotExist:
      return "pageidDoesNotExist";
    case kDisplayInvalidOnlineUrlPrefix:
      return "invalidOnlineUrlPrefix";
    case kDisplayNotAllowedOnline:
      return "notAllowedOnline";
    case kDisplayNotOnline:
      return "notOnline";
    case kDisplayUnexpectedResult:
      return "unexpectedResult";
    default:
      return "unknown";
  }
}

/* What OpenURL returned. */
static inline const char* VelmoHelpOpenUrlResultName(uint32_t result) {
  switch (result) {
    case kOpenUrlSuccess:
      return "success";
    case kOpenUrlBrowserLaunchFailure:
      return "browserLaunchFailure";
    case kOpenUrlHelpAppLaunchFailure:
      return "helpAppLaunchFailure";
    case kOpenUrlInvalidArgument:
      return "invalidArgument";
    case kOpenUrlMissingConfig:
      return "missingConfig";
    case kOpenUrlInvalidConfig:
      return "invalidConfig";
    case kOpenUrlInvalidInitialization:
      return "invalidInitialization";
    case kOpenUrlUnexpectedResult:
      return "unexpectedResult";
    default:
      return "unknown";
  }
}

/* What SearchHelp or Search returned. */
static inline const char* VelmoHelpSearchResultName(uint32_t result) {
  switch (result) {
    case kSearchSuccess:
      return "success";
    case kSearchLaunchFailure:
      return "launchFailure";
    case kSearchInvalidArgument:
      return "invalidArgument";
    case kSearchMissingConfig:
      return "missingConfig";
    case kSearchInvalidConfig:
      return "invalidConfig";
    case kSearchNoLocalPage:
      return "noLocalPage";
    case kSearchNoOnlinePage:
      return "noOnlinePage";
    case kSearchNoConfigName:
      return "noConfigName";
    default:
      return "unknown";
  }
}

/* What GetVelmoHelpClientOnlineStatus returned. */
static inline const char* VelmoHelpOnlineStatusName(uint32_t result) {
  switch (result) {
    case kOnlineStatusOnline:
      return "online";
    case kOnlineStatusOffline:
      return "offline";
    case kOnlineStatusNotInitialized:
      return "notInitialized";
    default:
      return "unknown";
  }
}

#endif /* VELMOHELP_RESULT_NAME_H_ */
