/* Links GIO and does nothing: what a helper that uses the desktop costs before
 * it has done anything. */
int main(void) { return 0; }
