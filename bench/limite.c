#include "bucle.h"

#include <stdlib.h>
#include <string.h>

/* bench_limite TASK FILE [FILE|NUMBER [NUMBER]] */

int bucle_abrir(const char *base, sqlite3 **bd)
{
    return sqlite3_open(base, bd)
        || sqlite3_exec(*bd,
                        "PRAGMA foreign_keys = ON; PRAGMA journal_mode = DELETE;"
                        "PRAGMA synchronous = EXTRA; PRAGMA cache_size = " OSTREL_CACHE,
                        NULL, NULL, NULL);
}

int main(int argc, char **argv)
{
    const char *tarea = argc > 2 ? argv[1] : "", *fichero = argv[2];
    const char *otro = argc > 3 ? argv[3] : "";
    if (!strcmp(tarea, "generar"))
        return bucle_generar(fichero, atol(otro));
    if (!strcmp(tarea, "importar"))
        return bucle_importar(fichero, otro);
    if (!strcmp(tarea, "exportar"))
        return bucle_exportar(fichero, otro);
    if (!strcmp(tarea, "hoja") && argc > 4)
        return bucle_hoja(fichero, otro, atol(argv[4]));
    if (!strcmp(tarea, "declarar"))
        return bucle_declarar(fichero, otro);
    if (!strcmp(tarea, "guardar"))
        return bucle_guardar(fichero, atol(otro));
    if (!strcmp(tarea, "lista"))
        return bucle_listar(fichero);
    if (!strcmp(tarea, "pendientes"))
        return bucle_pendientes(fichero);
    return 2;
}
