/* velmohelp for applications that embed it: ask what would be shown, make a
 * request without blocking, hand over the focus, choose a locale, act for
 * another host.
 *
 * The conventions of <velmohelp/velmohelp.h> hold for every function here as
 * well. Each has the prefix velmohelp_; the last ones are other names of
 * functions whose own names an application may have itself.
 */
#ifndef VELMOHELP_EMBED_H_
#define VELMOHELP_EMBED_H_

#include <velmohelp/export.h>

#ifdef __cplusplus
#include <cstdint>
#else
#include <stdint.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What shows the help. */
enum VelmoHelpTarget {
  kTargetNone = 0,   /* nothing would be shown */
  kTargetViewer = 1, /* the help viewer */
  kTargetBrowser = 2 /* the default browser */
};

/* What DisplayVelmoHelpClientPage, OpenURL or SearchHelp would do now: each
 * takes the same way as the request, but starts nothing, makes no folder and
 * leaves the client's state as it was. It may ask the network as the request
 * does, and so blocks as long.
 *
 * Returns what the request would return, as far as that is known without
 * starting anything: whether a program that exists keeps running is not.
 *
 * kind: a VelmoHelpTarget; kTargetNone unless 0 is returned. Null: not wanted.
 * url: what would be shown, for velmohelp_free; null when there is none, as
 * when the viewer gets a page id or a search's text. Null: not wanted. */
VELMOHELP_API uint32_t velmohelp_find_display(const char* page_id,
                                              uint32_t* kind, char** url);
VELMOHELP_API uint32_t velmohelp_find_url(const char* url, uint32_t* kind,
                                          char** target);
VELMOHELP_API uint32_t velmohelp_find_search(const char* product,
                                             const char* locale,
                                             const char* text, uint32_t* kind,
                                             char** url);

/* Frees a text of the functions above. Null: does nothing. */
VELMOHELP_API void velmohelp_free(void* memory);

/* The same three requests without blocking: a helper program makes the request
 * for this host, with its environment, its resources and a copy of the client's
 * state. The host's process gets no thread and no child, and its state stays as
 * it is: an initialisation that a search makes, or a configuration that has
 * become unusable, is not seen by later requests.
 *
 * Each returns a descriptor, close-on-exec, that becomes readable when the
 * result is there, for poll, g_unix_fd_add, QSocketNotifier or asyncio; or -1
 * when the request cannot be begun, with nothing left to close. Hand it to
 * velmohelp_finish, or close it: that cancels the request, and ends the helper
 * program with whatever it waits for. What it has started by then stays.
 *
 * Any number of requests may be on their way. None of them outlives the host.
 */
VELMOHELP_API int velmohelp_start_display(const char* page_id);
VELMOHELP_API int velmohelp_start_url(const char* url);
VELMOHELP_API int velmohelp_start_search(const char* product,
                                         const char* locale, const char* text);

/* The result of a started request: a number of the request's own table. Closes
 * the descriptor. Blocks while that is not readable.
 *
 * 1, in each table a launch that failed, also for a request whose helper
 * program broke down, and for -1. May be called after the state's end. */
VELMOHELP_API uint32_t velmohelp_finish(int descriptor);

/* The token with which the window system lets what is shown take the focus, for
 * the next viewer or browser that is started, or the next request that is begun
 * without blocking. It is forgotten then, and also when that start fails. A
 * find does not use it.
 *
 * The started program has it in XDG_ACTIVATION_TOKEN and DESKTOP_STARTUP_ID,
 * the desktop's portal as the option "activation_token". Without a token, what
 * the host was itself started with is passed on once, if it is still in the
 * host's environment.
 *
 * token: UTF-8, at most 1024 bytes; null or empty: none. Returns 0; 1 for
 * another text, with no change. */
VELMOHELP_API uint32_t velmohelp_set_activation_token(const char* token);

/* The best of the product's installed locales for a list of what the person
 * reads, best first, in the form of the variable LANGUAGE: "de_AT:de:en". For
 * each entry the same locale comes first, then those of the same language;
 * after all entries every other locale, by name. An entry may have a character
 * set and a modifier ("de_AT.UTF-8@euro") or a hyphen ("de-AT").
 *
 * It is always a locale that an initialisation for the product accepts; the
 * client need not be initialised and is not by this. Asks no network.
 *
 * preferred: null means an empty list. locale: room for 6 bytes, five and a
 * NUL; untouched unless 0 is returned.
 *
 * Returns 0; 1 when product is null, empty or only spaces, or locale is null;
 * 2 when the product has no such locale, and when out of memory. */
VELMOHELP_API uint32_t velmohelp_choose_locale(const char* product,
                                               const char* preferred,
                                               char locale[6]);

/* Makes another executable the host: its resources directory and its frameworks
 * are used, for a program that an interpreter runs, whose own file has none.
 * The file need not exist. To be called before the initialisation; a
 * configuration that has been read stays until a request reads it again.
 *
 * executable: an absolute path; null: the process's own again. Returns 0; 1 for
 * a path that is not absolute or too long for a file, with no change. */
VELMOHELP_API uint32_t velmohelp_set_host(const char* executable);

/* Other names. InitializeVelmoHelpClient with 0 as its third argument, */
VELMOHELP_API uint32_t velmohelp_initialise(const char* product,
                                            const char* locale);
/* DisplayVelmoHelpClientPage, */
VELMOHELP_API uint32_t velmohelp_display(const char* page_id);
/* OpenURL, */
VELMOHELP_API uint32_t velmohelp_open_url(const char* url);
/* SearchHelp, */
VELMOHELP_API uint32_t velmohelp_search(const char* product, const char* locale,
                                        const char* text);
/* GetVelmoHelpClientOnlineStatus, */
VELMOHELP_API uint32_t velmohelp_online_status(void);
/* and GetVelmoHelpClientVersion. */
VELMOHELP_API uint32_t velmohelp_version(void);

#ifdef __cplusplus
}
#endif

#endif /* VELMOHELP_EMBED_H_ */
