/* Links GIO and does nothing: what a helper that asks the desktop costs before
 * it has asked anything. */
int main(void) { return 0; }
