/* SPDX-License-Identifier: MIT
 *
 * Does nothing. It is built with the library and without it. The difference is
 * the time that a program needs to load the library.
 */
int main(void) { return 0; }
