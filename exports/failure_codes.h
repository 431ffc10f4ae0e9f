// What a request returns that has no result of its own.
#ifndef EXPORTS_FAILURE_CODES_H_
#define EXPORTS_FAILURE_CODES_H_

#include <velmohelp/velmohelp.h>

#include "exports/guarded.h"

namespace velmohelp {

inline constexpr FailureCodes<SearchReturnCode> kSearchFailures = {
    .state_has_ended = kSearchMissingConfig, .exception = kSearchLaunchFailure};
inline constexpr FailureCodes<DisplayPageReturnCode> kDisplayFailures = {
    .state_has_ended = kDisplayInvalidInitialization,
    .exception = kDisplayUnexpectedResult};
inline constexpr FailureCodes<OpenUrlReturnCode> kOpenUrlFailures = {
    .state_has_ended = kOpenUrlInvalidInitialization,
    .exception = kOpenUrlUnexpectedResult};
inline constexpr FailureCodes<OnlineStatusReturnCode> kOnlineStatusFailures = {
    .state_has_ended = kOnlineStatusNotInitialized,
    .exception = kOnlineStatusOffline};

}  // namespace velmohelp

#endif  // EXPORTS_FAILURE_CODES_H_
