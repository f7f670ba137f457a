#ifndef OSTREL_BENCH_RELOJ_H
#define OSTREL_BENCH_RELOJ_H

#include <stdio.h>
#include <time.h>

/* Seconds of processor time of this process, from its start. */
static inline double reloj_ahora(void)
{
    struct timespec t;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return (double)t.tv_sec + (double)t.tv_nsec / 1e9;
}

/* Tells the bench what the part of a task that began at `desde` has cost; the time now. */
static inline double reloj_parte(const char *nombre, double desde)
{
    printf("%s %.6f\n", nombre, reloj_ahora() - desde);
    return reloj_ahora();
}

#endif
