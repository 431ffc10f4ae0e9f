/* velmohelp: shows the help page that belongs to a place in an application.
 *
 * Conventions of this interface, for C11 and C++20 callers alike:
 *
 *  1. Text is a NUL-terminated byte string, UTF-8. Paths are POSIX paths.
 *  2. No function keeps a pointer that it is given; the caller owns its texts.
 *  3. A null text is answered with the function's code for a bad argument.
 *  4. The client's state is process-wide and has no lock: never call two
 *     functions at once. A call blocks until its work is done.
 *  5. No C++ exception leaves a function. Where memory runs out or a help map
 *     cannot be read to its end, the code is the one that each function names.
 *  6. Nothing is logged or shown; the returned code is the only report.
 *  7. No function writes a file, starts a thread, or changes the process's
 *     signals, locale, environment, working directory or umask.
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

/* What an initialisation answers. The numbers differ on purpose from those of
 * DisplayPageReturnCode: callers compare them, so neither may change. */
enum InitReturnCode {
  kInitSuccess = 0,
  kInitInvalidArgument = 1,        /* null, empty or nothing but blanks */
  kInitMissingHelpMap = 2,         /* declared, never answered */
  kInitInvalidHelpMap = 3,         /* declared, never answered */
  kInitMissingOnlineUrlPrefix = 4, /* declared, never answered */
  kInitInvalidOnlineUrlPrefix = 5, /* declared, never answered */
  kInitMissingConfig = 6,          /* the configuration cannot be read */
  kInitInvalidConfig = 7           /* a value is missing or does not match */
};

/* What a page display answers. */
enum DisplayPageReturnCode {
  kDisplaySuccess = 0,                /* viewer or browser was started */
  kDisplayHelpAppLaunchFailure = 1,   /* no viewer, or not running */
  kDisplayBrowserLaunchFailure = 2,   /* no browser, or no usable target */
  kDisplayInvalidArgument = 3,        /* null, empty or nothing but blanks */
  kDisplayMissingConfig = 4,          /* the configuration cannot be read */
  kDisplayInvalidConfig = 5,          /* invalid, or without content folders */
  kDisplayInvalidInitialization = 6,  /* not successfully initialised */
  kDisplayPageidDoesNotExist = 7,     /* no page, no home page, no viewer */
  kDisplayInvalidOnlineUrlPrefix = 8, /* declared, never answered */
  kDisplayNotAllowedOnline = 9,       /* declared, never answered */
  kDisplayNotOnline = 10,             /* declared, never answered */
  kDisplayUnexpectedResult = 11       /* a URL's opening failed otherwise */
};

/* Starts the client for one product and one locale.
 *
 * productId: base name of the help configuration file; locale: the folder that
 * holds it. Both are stored as given, blanks included. cleanProductId: when not
 * 0, every "/" and "\" of the product id is stored as "_".
 *
 * Returns 0, 1, 6 or 7 of InitReturnCode. 0 also, with nothing read again, when
 * the client already is initialised with the same two values. On 1 nothing is
 * changed; on 6 and 7 the two values stay stored and the client refuses
 * requests. Out of memory: 6. */
VELMOHELP_API uint32_t InitializeVelmoHelpClient(const char* productId,
                                                 const char* locale,
                                                 unsigned int cleanProductId);

/* The version, one byte a part from bit 16 down: 0x10500 is 1.5.0. */
VELMOHELP_API uint32_t GetVelmoHelpClientVersion(void);

/* 0: online help is allowed and its server reachable, probed at this call;
 * 1: it is not (also when memory runs out); 2: the client is not initialised.
 */
VELMOHELP_API uint32_t GetVelmoHelpClientOnlineStatus(void);

/* Shows the page that belongs to a page id, or the home page where no folder
 * knows the id. A page id that begins with "http://", "https://" or "file://"
 * is opened as OpenURL does.
 *
 * Returns 0 to 7 or 11 of DisplayPageReturnCode; 11 also when memory runs out
 * or a help map breaks while it is read. */
VELMOHELP_API uint32_t DisplayVelmoHelpClientPage(const char* pageId);

/* Opens a URL that begins with "http://", "https://" or "file://", in the
 * viewer where that may be used, else in the default browser.
 *
 * Returns: 0 opened; 1 the browser did not start; 2 the viewer did not start
 * (these two are crossed on purpose, callers compare the numbers); 3 null,
 * empty, or not such a URL; 4 configuration unreadable; 5 configuration
 * invalid or without content folders; 6 not initialised; 7 any other answer of
 * a launch, and out of memory. */
VELMOHELP_API uint32_t OpenURL(const char* url);

/* Searches the help of a product for a text, in the viewer or in the browser.
 * Initialises the client when it is not; later displays use this product and
 * locale.
 *
 * Returns: 0 started; 1 viewer or browser did not start, and out of memory;
 * 3 an argument is null or empty, or the text only blanks; 4 configuration
 * unreadable; 5 configuration invalid or without content folders; 6 offline
 * and no search page found; 7 online and no search page found. */
VELMOHELP_API uint32_t SearchHelp(const char* productId, const char* locale,
                                  const char* searchText);

/* SearchHelp for the product that the host preference "HelpcfgName" of the
 * domain "com.velmo.<a>.<b>" names, with the text passed on unencoded.
 *
 * Returns 8 when no such name is set, and for a or b null or empty (the next
 * SearchHelp then passes its text on unencoded), else what SearchHelp
 * returns. */
VELMOHELP_API uint32_t Search(const char* a, const char* b, const char* locale,
                              const char* searchText);

/* Percent-encodes what may not stand in a URL, as
 * ITEMInternal::VelmoHelpEncodeURIComponent of <velmohelp/text.h> does.
 *
 * in: UTF-8; out: the caller's buffer of outSize bytes. Returns the number of
 * bytes written before the terminating NUL, or -1, with out untouched, when
 * text and NUL do not fit, a pointer is null or memory runs out. */
VELMOHELP_API long VelmoHelpEncodeURIComponent(const char* in, char* out,
                                               long outSize);

#ifdef __cplusplus
}
#endif

#endif /* VELMOHELP_VELMOHELP_H_ */
