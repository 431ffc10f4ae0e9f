/* The header under test comes from the command line; C wants a declaration. */
extern int velmohelp_headers_compile_alone;
