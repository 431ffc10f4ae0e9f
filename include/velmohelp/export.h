/* Marks a declaration that the shared library offers to other programs. */
#ifndef VELMOHELP_EXPORT_H_
#define VELMOHELP_EXPORT_H_

#define VELMOHELP_API __attribute__((visibility("default")))

#endif /* VELMOHELP_EXPORT_H_ */
