/* SPDX-License-Identifier: MIT
 *
 * Does nothing. Built twice, with the library and without it: the difference is
 * what loading the library costs a program that never calls it.
 */
int main(void) { return 0; }
