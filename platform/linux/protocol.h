/* What the library and its helper programs say to each other. A helper takes
 * the question as its arguments and always writes an answer, in the form of
 * answer.h: one of those below, or an empty one when it cannot tell.
 *
 * The library starts a helper with a real-time interval timer: SIGALRM ends a
 * late helper. One that has answered and must live longer, as a client of the
 * bus does while a person chooses, switches the timer off with alarm(0). */
#ifndef PLATFORM_LINUX_PROTOCOL_H_
#define PLATFORM_LINUX_PROTOCOL_H_

/* velmohelp-reach HOST: one of these; empty when the name is unknown. */
#define VELMO_REACHABLE "reachable"
#define VELMO_REACHABLE_ON_CONNECTION "connection required"
#define VELMO_UNREACHABLE "unreachable"

/* velmohelp-fetch URL: this when the whole body arrived and is text. */
#define VELMO_IS_TEXT "text"

/* velmohelp-browser URL: records, each ended by a NUL. Either
 * VELMO_BROWSER_OPENED alone (the desktop has opened the URL), or
 * VELMO_BROWSER_START, the number of words of a command line in decimal, and
 * the words.
 *
 * velmohelp-browser VELMO_BROWSER_FIND URL: the same without opening anything.
 * VELMO_BROWSER_OPENED then means that the desktop has somebody to ask. */
#define VELMO_BROWSER_FIND "--find"
#define VELMO_BROWSER_OPENED "opened"
#define VELMO_BROWSER_START "start"

/* For a person who looks for the cause of a failure: reach and fetch write a
 * line that says why, and an empty one when there is nothing to say. */
#define VELMO_SAY_WHY "--why"

/* velmohelp-browser: describes the default browser, one "key=value" per line:
 * "entry" (its desktop entry), "name", "snap" and "flatpak" (what it is packed
 * as, when it is). Nothing when there is none. */
#define VELMO_BROWSER_DESCRIBE "--describe"

#endif /* PLATFORM_LINUX_PROTOCOL_H_ */
