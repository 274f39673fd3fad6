/* The host C library's list of unimplemented functions is not needed for a syntax check. */
