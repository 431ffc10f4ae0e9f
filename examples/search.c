/* search PRODUCT LOCALE TEXT: a C program that embeds the help client. It
 * searches the help of a product; its exit status is the result code. */
#include <stdio.h>
#include <velmohelp/velmohelp.h>

int main(int argc, char** argv) {
  if (argc != 4) {
    fputs("usage: search PRODUCT LOCALE TEXT\n", stderr);
    return 64;
  }
  return (int)SearchHelp(argv[1], argv[2], argv[3]);
}
