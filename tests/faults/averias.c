/* Loaded into a program beforehand: lets the nth call that writes below OSTREL_AVERIA_CARPETA fail.
   OSTREL_AVERIA is "N HOW": HOW "5" or "28" is the error (EIO, ENOSPC), with a "+" behind it all
   later calls fail too; "k" kills the process before the call, "K" after it, "m" lets a write put
   down half of what it was given and kills. The calls are listed in the file OSTREL_AVERIA_GOLPES,
   the last one of a process killed too. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

static const char *carpeta;
static long turno; /* of the call to strike */
static int codigo; /* 0: kill */
static char como;
static int siempre;
static long llamadas;

#define REAL(nombre) ((__typeof__(&nombre))dlsym(RTLD_NEXT, #nombre))

__attribute__((constructor)) static void empezar(void)
{
    char *resto = NULL;
    const char *pedida = getenv("OSTREL_AVERIA");
    if (!pedida)
        return;
    carpeta = getenv("OSTREL_AVERIA_CARPETA");
    turno = strtol(pedida, &resto, 10);
    como = resto[1];
    codigo = (int)strtol(resto, &resto, 10);
    siempre = *resto == '+';
}

static void anotar(const char *llamada, const char *ruta)
{
    const char *lista = getenv("OSTREL_AVERIA_GOLPES");
    const int fd = REAL(open)(lista, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    char texto[PATH_MAX + 40];
    const int n = snprintf(texto, sizeof texto, "%s %s\n", llamada, ruta);
    if (fd < 0 || REAL(write)(fd, texto, (size_t)n) != n || close(fd) != 0)
        abort();
}

/* 1: this call fails, with errno set; 2: it is the last one of the process */
static int toca(const char *llamada, const char *ruta)
{
    const int antes = errno;
    if (!carpeta || strncmp(ruta, carpeta, strlen(carpeta)) != 0)
        return 0;
    ++llamadas;
    anotar(llamada, ruta);
    errno = antes;
    if (turno == 0 || llamadas < turno || (llamadas > turno && !siempre))
        return 0;
    if (como == 'k')
        raise(SIGKILL);
    errno = codigo;
    return codigo != 0 ? 1 : 2;
}

static int tocaFd(const char *llamada, int fd)
{
    char enlace[40];
    char ruta[PATH_MAX];
    const int antes = errno;
    snprintf(enlace, sizeof enlace, "/proc/self/fd/%d", fd);
    const ssize_t n = !carpeta ? -1 : readlink(enlace, ruta, sizeof ruta - 1);
    errno = antes;
    if (n < 0)
        return 0;
    ruta[n] = 0;
    return toca(llamada, ruta);
}

/* What the call came to, or the end when it was its process's last one. */
#define HECHA(tipo, toca, llamada)                                                                 \
    const int golpe = toca;                                                                        \
    if (golpe == 1)                                                                                \
        return -1;                                                                                 \
    const tipo hecho = llamada;                                                                    \
    if (golpe == 2)                                                                                \
        raise(SIGKILL);                                                                            \
    return hecho

static size_t parte(size_t n, int golpe)
{
    return golpe == 2 && como == 'm' ? n / 2 : n;
}

#define ESCRITURA(nombre, parametros, ...)                                                         \
    ssize_t nombre parametros                                                                      \
    {                                                                                              \
        HECHA(ssize_t, tocaFd(#nombre, fd), REAL(nombre)(fd, b, parte(n, golpe), ##__VA_ARGS__));  \
    }
ESCRITURA(write, (int fd, const void *b, size_t n))
ESCRITURA(pwrite64, (int fd, const void *b, size_t n, off64_t lugar), lugar)

#define SOBRE_FD(nombre, parametros, ...)                                                          \
    int nombre parametros                                                                          \
    {                                                                                              \
        HECHA(int, tocaFd(#nombre, fd), REAL(nombre)(fd, ##__VA_ARGS__));                          \
    }
SOBRE_FD(fsync, (int fd))
SOBRE_FD(fdatasync, (int fd))
SOBRE_FD(ftruncate64, (int fd, off64_t n), n)
SOBRE_FD(fchmod, (int fd, mode_t modo), modo)

#define SOBRE_RUTA(nombre, parametros, ...)                                                        \
    int nombre parametros                                                                          \
    {                                                                                              \
        HECHA(int, toca(#nombre, a), REAL(nombre)(a, ##__VA_ARGS__));                              \
    }
SOBRE_RUTA(unlink, (const char *a))
SOBRE_RUTA(remove, (const char *a))
SOBRE_RUTA(rename, (const char *a, const char *b), b)
SOBRE_RUTA(link, (const char *a, const char *b), b)
SOBRE_RUTA(mkdir, (const char *a, mode_t modo), modo)

int linkat(int d, const char *a, int e, const char *b, int modo)
{
    HECHA(int, toca("linkat", b), REAL(linkat)(d, a, e, b, modo));
}

int renameat2(int d, const char *a, int e, const char *b, unsigned modo)
{
    HECHA(int, toca("renameat2", a), REAL(renameat2)(d, a, e, b, modo));
}

#define APERTURA(nombre)                                                                           \
    int nombre(const char *a, int modo, ...)                                                       \
    {                                                                                              \
        va_list lista;                                                                             \
        va_start(lista, modo);                                                                     \
        const mode_t permisos = va_arg(lista, mode_t);                                             \
        va_end(lista);                                                                             \
        HECHA(int, (modo & O_ACCMODE) != O_RDONLY ? toca(#nombre, a) : 0,                          \
              REAL(nombre)(a, modo, permisos));                                                    \
    }
APERTURA(open)
APERTURA(open64)
