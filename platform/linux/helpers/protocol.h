/* What the library and its helper programs say to each other. A helper takes
 * what it is asked about as its only argument and writes its answer to its
 * standard output; it writes nothing when it has none. */
#ifndef PLATFORM_LINUX_HELPERS_PROTOCOL_H_
#define PLATFORM_LINUX_HELPERS_PROTOCOL_H_

/* velmohelp-reach HOST: one of these, or nothing when the name is not known. */
#define VELMO_REACHABLE "reachable\n"
#define VELMO_REACHABLE_ON_CONNECTION "connection required\n"
#define VELMO_UNREACHABLE "unreachable\n"

/* velmohelp-fetch URL: this when the whole body came and is text. */
#define VELMO_IS_TEXT "text\n"

/* velmohelp-browser URL: records, each ended by a NUL. Either
 * VELMO_BROWSER_OPENED alone (the desktop was asked to open the URL), or
 * VELMO_BROWSER_START, the number of words of a command line in decimal, and
 * the words. */
#define VELMO_BROWSER_OPENED "opened"
#define VELMO_BROWSER_START "start"

/* velmohelp-run PROGRAM ARGUMENT...: runs the program to its end and writes its
 * exit status, one byte, to this descriptor; nothing when it did not start or a
 * signal ended it. */
#define VELMO_RUN_STATUS_DESCRIPTOR 3

#endif /* PLATFORM_LINUX_HELPERS_PROTOCOL_H_ */
