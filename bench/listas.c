#include "bucle.h"
#include "reloj.h"

#include <ctype.h>
#include <stdlib.h>
#include <string.h>

struct fila
{
    int csco, provincia, num430, num480;
    char *dni, *nombre, *clave, *municipio;
};

static char *texto(sqlite3_stmt *s, int columna)
{
    return strdup((const char *)sqlite3_column_text(s, columna));
}

static long contar(sqlite3 *bd)
{
    sqlite3_stmt *s = NULL;
    sqlite3_prepare_v2(bd, "SELECT count(*) FROM DECLARANTES", -1, &s, NULL);
    sqlite3_step(s);
    const long cuantas = (long)sqlite3_column_int64(s, 0);
    sqlite3_finalize(s);
    return cuantas;
}

static int porDni(const void *una, const void *otra)
{
    return strcmp(((const struct fila *)una)->dni, ((const struct fila *)otra)->dni);
}

static int porNombre(const void *una, const void *otra)
{
    const int orden = strcmp(((const struct fila *)una)->clave, ((const struct fila *)otra)->clave);
    return orden ? orden : porDni(una, otra);
}

static int contiene(const char *nombre, char letra)
{
    while (*nombre && toupper((unsigned char)*nombre) != letra)
        ++nombre;
    return *nombre != 0;
}

int bucle_listar(const char *base)
{
    sqlite3 *bd = NULL;
    sqlite3_stmt *s = NULL;
    double desde = reloj_ahora();
    if (bucle_abrir(base, &bd)
        || sqlite3_prepare_v2(bd,
                              "SELECT CSCO, CODPROV, NUM430, NUM480, DNI, NOMBRE, CLAVE, NOMMUN"
                              " FROM DECLARANTES",
                              -1, &s, NULL))
        return 1;
    const long cuantas = contar(bd);
    struct fila *filas = calloc((size_t)cuantas, sizeof *filas);
    long leidas = 0;
    for (; leidas < cuantas && sqlite3_step(s) == SQLITE_ROW; ++leidas)
        filas[leidas] = (struct fila){sqlite3_column_int(s, 0),
                                      sqlite3_column_int(s, 1),
                                      sqlite3_column_int(s, 2),
                                      sqlite3_column_int(s, 3),
                                      texto(s, 4),
                                      texto(s, 5),
                                      texto(s, 6),
                                      texto(s, 7)};
    qsort(filas, (size_t)leidas, sizeof *filas, porNombre);
    desde = reloj_parte("load", desde);
    long *visibles = calloc((size_t)cuantas, sizeof *visibles), hallados = 0;
    for (long i = 0; i < leidas; ++i)
        if (contiene(filas[i].nombre, 'M') || contiene(filas[i].dni, 'M'))
            visibles[hallados++] = i;
    desde = reloj_parte("key", desde);
    qsort(filas, (size_t)leidas, sizeof *filas, porDni);
    reloj_parte("sort", desde);
    sqlite3_finalize(s);
    sqlite3_close(bd);
    return hallados == 0; /* rows and texts end with the process */
}

struct estado
{
    int csde, primero, cuantos;
    long long importe, anteriores;
};

static void leerEstados(sqlite3_stmt *s, struct estado *estados, int hasta)
{
    while (sqlite3_step(s) == SQLITE_ROW) {
        struct estado *e = &estados[sqlite3_column_int(s, 0)];
        const int mes = sqlite3_column_int(s, 1);
        if (mes == hasta) {
            e->csde = sqlite3_column_int(s, 2);
            e->importe = sqlite3_column_int64(s, 3);
        }
        if (!e->primero || mes < e->primero)
            e->primero = mes;
        if (mes < hasta) {
            ++e->cuantos;
            e->anteriores |= 1LL << (hasta - 1 - mes);
        }
    }
}

int bucle_pendientes(const char *base)
{
    sqlite3 *bd = NULL;
    sqlite3_stmt *declaraciones = NULL, *declarantes = NULL;
    const double desde = reloj_ahora();
    if (bucle_abrir(base, &bd)
        || sqlite3_prepare_v2(bd,
                              "SELECT CSCO, EJERCICIO * 12 + PERIODO - 1, CSDE, IMPORTE"
                              " FROM DECLARACIONES WHERE MODELO = '430'",
                              -1, &declaraciones, NULL)
        || sqlite3_prepare_v2(
            bd, "SELECT CSCO, DNI, NOMBRE, CLAVE, NOMMUN FROM DECLARANTES ORDER BY CLAVE, DNI", -1,
            &declarantes, NULL))
        return 1;
    const long cuantos = contar(bd);
    struct estado *estados = calloc((size_t)cuantos + 1, sizeof *estados);
    leerEstados(declaraciones, estados, 2026 * 12);
    struct fila *filas = calloc((size_t)cuantos, sizeof *filas);
    long leidas = 0;
    for (; leidas < cuantos && sqlite3_step(declarantes) == SQLITE_ROW; ++leidas) {
        filas[leidas].csco = sqlite3_column_int(declarantes, 0);
        filas[leidas].dni = texto(declarantes, 1);
        filas[leidas].nombre = texto(declarantes, 2);
    }
    reloj_parte("pending", desde);
    sqlite3_finalize(declaraciones);
    sqlite3_finalize(declarantes);
    return sqlite3_close(bd) | (leidas != cuantos);
}
