#ifndef OSTREL_BENCH_BUCLE_H
#define OSTREL_BENCH_BUCLE_H

#include <sqlite3.h>

/* The plainest way to do the same work: prepared statements in a loop, nothing checked. All return
   0 when they have done it. */

/* Opens a database as the program does, with the cache that it gives a large work. */
int bucle_abrir(const char *base, sqlite3 **bd);

/* Writes `lineas` declarants in the exchange format, in no order. */
int bucle_generar(const char *fichero, long lineas);
/* Puts the lines of a file into a database with the program's schema, 5,000 to 50,000 a
   transaction. */
int bucle_importar(const char *base, const char *fichero);
/* Writes every declarant of a database to a file. */
int bucle_exportar(const char *base, const char *fichero);

/* Writes a sheet with the 430 of January 2026 of the first `filas` declarants of a file. */
int bucle_hoja(const char *fichero, const char *hoja, long filas);
/* Puts the returns of a sheet into a database that holds their declarants, 5,000 a transaction. */
int bucle_declarar(const char *base, const char *hoja);
/* Stores a 430 each of the first `cuantas` declarants, each in a transaction of its own. */
int bucle_guardar(const char *base, long cuantas);

/* Every declarant in memory in the order of the names; looking for a letter; the order of the DNI.
 */
int bucle_listar(const char *base);
/* Every declarant with its return of January 2026 and the months before it that are missing. */
int bucle_pendientes(const char *base);

#endif
