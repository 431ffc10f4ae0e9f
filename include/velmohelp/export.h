/* Marks a declaration that the shared library offers to other programs. */
#ifndef VELMOHELP_EXPORT_H_
#define VELMOHELP_EXPORT_H_

#define VELMOHELP_API __attribute__((visibility("default")))

/* Marks a variable that it offers. A program refers to it weakly: some
 * compilers would else let the program copy the variable into itself, and the
 * library would never see the copy. */
#define VELMOHELP_API_VARIABLE VELMOHELP_API __attribute__((weak))

#endif /* VELMOHELP_EXPORT_H_ */
