#include "bucle.h"
#include "reloj.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int bucle_hoja(const char *fichero, const char *hoja, long filas)
{
    char linea[192];
    FILE *entrada = fopen(fichero, "rb");
    FILE *salida = fopen(hoja, "wb");
    if (!entrada || !salida)
        return 1;
    fprintf(salida, "DNI;EJERCICIO;PERIODO;BASE\n");
    for (long i = 0; i < filas && fgets(linea, sizeof linea, entrada); ++i)
        fprintf(salida, "%.9s;2026;1;%ld,%02ld\n", linea, 1000 + i, i % 100);
    fclose(entrada);
    return fclose(salida);
}

enum { CLAVE, CABECERA, FIGURAS, RECIENTE, SENTENCIAS };
static const char *const SQL[SENTENCIAS] = {
    "SELECT CSCO FROM DECLARANTES WHERE DNI = ?",
    "INSERT INTO DECLARACIONES (CSCO, EJERCICIO, PERIODICIDAD, PERIODO, MODELO, TIPOLOGIA, IMPORTE)"
    " VALUES (?, ?, 1, ?, '430', 1, ?)",
    "INSERT INTO DATOS430 (CSDE, RECTIFICA, BASELIQ, TIPOLIQ, CUOTALIQ, BASEREC, CUOTAREC, BASETOT,"
    " TIPOTOT, CUOTATOT) VALUES (?1, '', ?2, 800, ?3, 0, 0, ?2, 800, ?3)",
    "UPDATE DECLARANTES SET RECIENTE = 1 + (SELECT max(RECIENTE) FROM DECLARANTES) WHERE CSCO = ?",
};

static int abrir(const char *base, sqlite3 **bd, sqlite3_stmt **s)
{
    int malo = bucle_abrir(base, bd);
    for (int i = 0; !malo && i < SENTENCIAS; ++i)
        malo = sqlite3_prepare_v2(*bd, SQL[i], -1, &s[i], NULL);
    return malo;
}

static int cerrar(sqlite3 *bd, sqlite3_stmt **s)
{
    for (int i = 0; i < SENTENCIAS; ++i)
        sqlite3_finalize(s[i]);
    return sqlite3_close(bd);
}

static int correr(sqlite3_stmt *s)
{
    const int codigo = sqlite3_step(s);
    sqlite3_reset(s);
    return codigo != SQLITE_DONE;
}

static int insertar(sqlite3 *bd, sqlite3_stmt **s, int csco, int ejercicio, int mes, long long base)
{
    const long long cuota = (base * 8 + 50) / 100;
    sqlite3_bind_int(s[CABECERA], 1, csco);
    sqlite3_bind_int(s[CABECERA], 2, ejercicio);
    sqlite3_bind_int(s[CABECERA], 3, mes);
    sqlite3_bind_int64(s[CABECERA], 4, cuota);
    int malo = correr(s[CABECERA]);
    sqlite3_bind_int64(s[FIGURAS], 1, sqlite3_last_insert_rowid(bd));
    sqlite3_bind_int64(s[FIGURAS], 2, base);
    sqlite3_bind_int64(s[FIGURAS], 3, cuota);
    malo |= correr(s[FIGURAS]);
    return malo;
}

static int declarar(sqlite3 *bd, sqlite3_stmt **s, char *linea)
{
    const char *dni = strtok(linea, ";");
    const int ejercicio = atoi(strtok(NULL, ";")), mes = atoi(strtok(NULL, ";"));
    const long long euros = atoll(strtok(NULL, ","));
    const long long base = euros * 100 + atoll(strtok(NULL, "\n"));
    sqlite3_bind_text(s[CLAVE], 1, dni, -1, SQLITE_STATIC);
    const int malo = sqlite3_step(s[CLAVE]) != SQLITE_ROW;
    const int csco = sqlite3_column_int(s[CLAVE], 0);
    sqlite3_reset(s[CLAVE]);
    return malo || insertar(bd, s, csco, ejercicio, mes, base);
}

int bucle_declarar(const char *base, const char *hoja)
{
    sqlite3 *bd = NULL;
    sqlite3_stmt *s[SENTENCIAS] = {NULL};
    char linea[80];
    int malo = 0;
    FILE *entrada = fopen(hoja, "rb");
    if (!entrada || abrir(base, &bd, s) || !fgets(linea, sizeof linea, entrada))
        return 1;
    for (long numero = 0; !malo && fgets(linea, sizeof linea, entrada); ++numero) {
        if (numero % 5000 == 0)
            malo = sqlite3_exec(bd, numero ? "COMMIT; BEGIN IMMEDIATE" : "BEGIN IMMEDIATE", NULL,
                                NULL, NULL);
        malo |= declarar(bd, s, linea);
    }
    malo |= sqlite3_exec(bd, "COMMIT", NULL, NULL, NULL);
    fclose(entrada);
    return malo | cerrar(bd, s);
}

int bucle_guardar(const char *base, long cuantas)
{
    sqlite3 *bd = NULL;
    sqlite3_stmt *s[SENTENCIAS] = {NULL};
    int malo = abrir(base, &bd, s);
    const double desde = reloj_ahora();
    for (int csco = 1; !malo && csco <= cuantas; ++csco) {
        malo = sqlite3_exec(bd, "BEGIN IMMEDIATE", NULL, NULL, NULL);
        sqlite3_bind_int(s[RECIENTE], 1, csco);
        malo |= correr(s[RECIENTE]) | insertar(bd, s, csco, 2025, 3, 123456);
        malo |= sqlite3_exec(bd, "COMMIT", NULL, NULL, NULL);
    }
    reloj_parte("save", desde);
    return malo | cerrar(bd, s);
}
