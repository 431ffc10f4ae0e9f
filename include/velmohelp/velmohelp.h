/* velmohelp: shows the help page that belongs to a place in an application.
 *
 * Conventions of this interface, for callers in C11 and C++17 alike:
 *
 *  1. Text is a NUL-terminated byte string, UTF-8, except for the two names
 * that Search takes. Paths are POSIX paths.
 *  2. No function keeps a pointer that it is given; the caller owns its texts.
 *  3. A null text gives the function's code for a bad argument. Two codes come
 *     first: 6 of a page display that is not initialised, and 8 of Search, also
 *     when one of its names is null.
 *  4. The client's state is process-wide and has no lock: never call two
 *     functions at once. A call blocks until its work is done.
 *  5. No C++ exception leaves a function. When it is out of memory or a help
 *     map cannot be read to its end, it returns the code that it names below.
 *  6. Nothing is logged or shown; the returned code is the only report.
 *  7. A thread that is cancelled in a call ends when the call does.
 *  8. The state ends when the library is unloaded and when the process ends,
 *     before the exit handlers that were registered before the library was
 *     loaded. From then on the client is not initialised and stays so: an
 *     initialisation returns 6, a display and OpenURL 6, a search 4, the
 *     online status 2, whatever the arguments. A call that is running then is
 *     not waited for, and finds the state whole.
 *  9. No function writes a file, starts a thread, or changes the process's
 *     signals, locale, environment, working directory or umask. The one thing
 *     that may be made is the user's settings folder, when it is missing.
 */
#ifndef VELMOHELP_VELMOHELP_H_
#define VELMOHELP_VELMOHELP_H_

#include <velmohelp/export.h>

#ifdef __cplusplus
#include <cstdint>
#else
#include <stdint.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What an initialisation returns. The numbers of the codes in this file differ
 * from each other on purpose: callers compare them, so none may change. */
enum InitReturnCode {
  kInitSuccess = 0,
  kInitInvalidArgument = 1,        /* null, empty or only spaces */
  kInitMissingHelpMap = 2,         /* declared, never returned */
  kInitInvalidHelpMap = 3,         /* declared, never returned */
  kInitMissingOnlineUrlPrefix = 4, /* declared, never returned */
  kInitInvalidOnlineUrlPrefix = 5, /* declared, never returned */
  kInitMissingConfig = 6,          /* the configuration cannot be read */
  kInitInvalidConfig = 7           /* a value is missing or does not match */
};

/* What a page display returns. */
enum DisplayPageReturnCode {
  kDisplaySuccess = 0,                /* viewer or browser was started */
  kDisplayHelpAppLaunchFailure = 1,   /* no viewer, or not running */
  kDisplayBrowserLaunchFailure = 2,   /* no browser, or no usable target */
  kDisplayInvalidArgument = 3,        /* null, empty or only spaces */
  kDisplayMissingConfig = 4,          /* the configuration cannot be read */
  kDisplayInvalidConfig = 5,          /* invalid, or without content folders */
  kDisplayInvalidInitialization = 6,  /* not successfully initialised */
  kDisplayPageidDoesNotExist = 7,     /* no page, no home page, no viewer */
  kDisplayInvalidOnlineUrlPrefix = 8, /* declared, never returned */
  kDisplayNotAllowedOnline = 9,       /* declared, never returned */
  kDisplayNotOnline = 10,             /* declared, never returned */
  kDisplayUnexpectedResult = 11       /* opening a URL failed otherwise */
};

/* What opening a URL returns. The two failed launches have the numbers that a
 * page display gives to the other one of the two. */
enum OpenUrlReturnCode {
  kOpenUrlSuccess = 0,               /* viewer or browser was started */
  kOpenUrlBrowserLaunchFailure = 1,  /* no browser */
  kOpenUrlHelpAppLaunchFailure = 2,  /* no viewer, or not running */
  kOpenUrlInvalidArgument = 3,       /* null, empty or not such a URL */
  kOpenUrlMissingConfig = 4,         /* the configuration cannot be read */
  kOpenUrlInvalidConfig = 5,         /* invalid, or without content folders */
  kOpenUrlInvalidInitialization = 6, /* not successfully initialised */
  kOpenUrlUnexpectedResult = 7       /* any other failure, and out of memory */
};

/* What a search returns. */
enum SearchReturnCode {
  kSearchSuccess = 0,         /* viewer or browser was started */
  kSearchLaunchFailure = 1,   /* neither was, or out of memory */
  kSearchInvalidArgument = 3, /* null or empty, or a text of only spaces */
  kSearchMissingConfig = 4,   /* the configuration cannot be read, or out of
                                 memory while the client is initialised */
  kSearchInvalidConfig = 5,   /* invalid, or without content folders */
  kSearchNoLocalPage = 6,     /* offline, and no search page found */
  kSearchNoOnlinePage = 7,    /* online, and no search page found */
  kSearchNoConfigName = 8     /* Search only: no configuration name is set,
                                 or one of the two names is null or empty */
};

/* What the query of the online status returns. */
enum OnlineStatusReturnCode {
  kOnlineStatusOnline = 0,        /* allowed, and the server is reachable */
  kOnlineStatusOffline = 1,       /* not so, or out of memory */
  kOnlineStatusNotInitialized = 2 /* not successfully initialised */
};

/* Starts the client for one product and one locale.
 *
 * productId: base name of the help configuration file; locale: the folder that
 * holds it. Both are stored as given, spaces included. cleanProductId: when it
 * is not 0, every "/" and "\" of the product id is stored as "_".
 *
 * A configuration that is accepted replaces the locale by the first five bytes
 * of its "id" and is then looked for again, under that locale. A locale should
 * therefore have five bytes: "en" becomes "en_Fo" for the product "Foo", and a
 * configuration for "en" alone gives 6.
 *
 * Returns 0, 1, 6 or 7 of InitReturnCode. A client that is already initialised
 * with the same two values returns 0 and reads nothing again. On 1 nothing has
 * changed. On 6 and 7 the client refuses requests other than searches; the two
 * values stay stored, and so does what UpdateHelpConfigInfo of
 * <velmohelp/config.h> leaves. Out of memory: 6. */
VELMOHELP_API uint32_t InitializeVelmoHelpClient(const char* productId,
                                                 const char* locale,
                                                 unsigned int cleanProductId);

/* The version, one byte per part from bit 16 down: 0x10500 is 1.5.0. */
VELMOHELP_API uint32_t GetVelmoHelpClientVersion(void);

/* Whether online help is allowed and its server reachable, probed at each call.
 * Returns an OnlineStatusReturnCode; out of memory: 1. */
VELMOHELP_API uint32_t GetVelmoHelpClientOnlineStatus(void);

/* Shows the page that belongs to a page id, or the home page when no folder
 * knows the id. A page id that begins with "http://", "https://" or "file://"
 * is opened as OpenURL does.
 *
 * Returns 0 to 7 or 11 of DisplayPageReturnCode; 11 also when out of memory and
 * when a help map cannot be read to its end. */
VELMOHELP_API uint32_t DisplayVelmoHelpClientPage(const char* pageId);

/* Opens a URL that begins with "http://", "https://" or "file://", in the
 * viewer when that may be used, else in the default browser.
 *
 * Returns an OpenUrlReturnCode; out of memory: 7. */
VELMOHELP_API uint32_t OpenURL(const char* url);

/* Searches the help of a product for a text, in the viewer or in the browser.
 * Initialises the client when it is not initialised; later displays use this
 * product and locale.
 *
 * Returns a SearchReturnCode other than 8; out of memory: 1, or 4 while the
 * client is initialised. */
VELMOHELP_API uint32_t SearchHelp(const char* productId, const char* locale,
                                  const char* searchText);

/* SearchHelp for the product that the host preference "HelpcfgName" of the
 * domain "com.velmo.<a>.<b>" names, with the text passed on unencoded.
 *
 * a and b are Mac Roman. A caller with UTF-8 text converts it first: otherwise
 * each byte of a letter beyond ASCII becomes a character of its own in the name
 * of the administrator's file.
 *
 * Returns a SearchReturnCode: 8 when no such name is set and when a or b is
 * null or empty, else what SearchHelp returns. The mark for an unencoded text
 * is cleared by a search that uses its text: after 3, 4, 5 and 8 of Search or
 * SearchHelp, and perhaps out of memory, it is still set for the next
 * SearchHelp. */
VELMOHELP_API uint32_t Search(const char* a, const char* b, const char* locale,
                              const char* searchText);

/* Percent-encodes the characters that are not legal in a URL, as
 * ITEMInternal::VelmoHelpEncodeURIComponent of <velmohelp/text.h> does.
 *
 * in: UTF-8; out: the caller's buffer of outSize bytes. Returns the number of
 * bytes written before the terminating NUL, or -1, with out untouched, when
 * text and NUL do not fit, a pointer is null or the call is out of memory. */
VELMOHELP_API long VelmoHelpEncodeURIComponent(const char* in, char* out,
                                               long outSize);

#ifdef __cplusplus
}
#endif

#endif /* VELMOHELP_VELMOHELP_H_ */
