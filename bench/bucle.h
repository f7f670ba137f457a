#ifndef OSTREL_BENCH_BUCLE_H
#define OSTREL_BENCH_BUCLE_H

#ifdef __cplusplus
extern "C" {
#endif

/* The plainest way to do the same rows: prepared statements in a loop, nothing checked. All return
   0 when they have done it. */

/* Writes `lineas` declarants in the exchange format, in no order. */
int bucle_generar(const char *fichero, long lineas);
/* Puts the lines of a file into a database with the program's schema, 5,000 to 50,000 a
 * transaction. */
int bucle_importar(const char *base, const char *fichero);
/* Writes every declarant of a database to a file. */
int bucle_exportar(const char *base, const char *fichero);
/* Writes a sheet with a 430 of the first `filas` declarants of a file. */
int bucle_hoja(const char *fichero, const char *hoja, long filas);
/* Puts the returns of a sheet into a database that holds their declarants, 5,000 a transaction. */
int bucle_declarar(const char *base, const char *hoja);

#ifdef __cplusplus
}
#endif

#endif
