/* The checked targets are 64-bit Macs; the host's C library sees an LP64 machine. */
#define __WORDSIZE 64
#define __WORDSIZE_TIME64_COMPAT32 1
#define __SYSCALL_WORDSIZE 64
