#include "bucle.h"

#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { ANCHO = 153 };

/* Columns of a line, from 0, in the order of the statements below. */
static const struct
{
    int principio, ancho, numero;
} COLUMNAS[] = {
    {0, 9, 0},  {9, 40, 0}, {49, 2, 0}, {51, 30, 0}, {81, 5, 1},  {86, 2, 0},   {88, 2, 0},
    {90, 2, 0}, {92, 3, 0}, {95, 2, 1}, {97, 5, 0},  {102, 3, 1}, {105, 25, 0}, {130, 9, 0},
};
enum { CUANTAS = sizeof COLUMNAS / sizeof COLUMNAS[0] };

static const char *const ALTA
    = "INSERT INTO DECLARANTES (DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, MANO,"
      " CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO, CLAVE)"
      " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?2)";
static const char *const LECTURA
    = "SELECT DNI, NOMBRE, VIA, DOMICILIO, NUMERO, LETRA, ESCALERA, PISO, MANO, CODPROV, CODPOS,"
      " CODMUN, NOMMUN, TELEFONO, NUM430, NUM480 FROM DECLARANTES ORDER BY DNI";

int bucle_generar(const char *fichero, long lineas)
{
    static const char *const nombres[] = {"SEGUROS", "MUTUA",
                                          "IBA\xD1"
                                          "EZ",
                                          "COMPA\xD1"
                                          "IA",
                                          "\xC1LAVA"};
    FILE *salida = fopen(fichero, "wb");
    if (!salida)
        return 1;
    for (long i = 0; i < lineas; ++i) {
        /* every number up to `lineas` once: the factor is a prime */
        const long numero = (long)((long long)i * 7919 % lineas) + 1;
        char nombre[41];
        snprintf(nombre, sizeof nombre, "%s DEL NORTE %07ld", nombres[numero % 5],
                 numero * 31 % 9999991);
        fprintf(salida, "%08ld%c%-40sCL%-30s%05ld%-2s%-2s%-2ld%-3s20%05ld001%-25s%09ld%07d%07d\r\n",
                numero, "TRWAGMYFPDXBNJZSQVHLCKE"[numero % 23], nombre, "CALLE MAYOR", numero % 300,
                "", "", numero % 9, "DCH", 20001 + numero % 900, "ABRENZUOLA",
                943000000 + numero % 999999, 0, 0);
    }
    return fclose(salida);
}

/* The files made here have nothing between 80 and 9F: those bytes are their own characters. */
static int aUtf8(const char *texto, int ancho, char *destino)
{
    char *fin = destino;
    while (ancho > 0 && texto[ancho - 1] == ' ')
        --ancho;
    for (int i = 0; i < ancho; ++i) {
        const unsigned char c = (unsigned char)texto[i];
        if (c >= 0x80)
            *fin++ = (char)(0xC0 | c >> 6);
        *fin++ = (char)(c < 0x80 ? c : 0x80 | (c & 0x3F));
    }
    return (int)(fin - destino);
}

static int insertar(sqlite3_stmt *alta, const char *linea)
{
    char textos[CUANTAS][80];
    for (int i = 0; i < CUANTAS; ++i) {
        const int largo = aUtf8(linea + COLUMNAS[i].principio, COLUMNAS[i].ancho, textos[i]);
        textos[i][largo] = 0;
        if (COLUMNAS[i].numero)
            sqlite3_bind_int64(alta, i + 1, atol(textos[i]));
        else
            sqlite3_bind_text(alta, i + 1, textos[i], largo, SQLITE_STATIC);
    }
    const int codigo = sqlite3_step(alta);
    sqlite3_reset(alta);
    return codigo == SQLITE_DONE ? 0 : 1;
}

/* As the program does: a long file takes larger transactions. */
static long lineasTransaccion(long leidas)
{
    return leidas < 50000 ? 5000 : leidas > 500000 ? 50000 : leidas / 10;
}

int bucle_importar(const char *base, const char *fichero)
{
    sqlite3 *bd = NULL;
    sqlite3_stmt *alta = NULL;
    char linea[ANCHO + 16];
    long numero = 0, primera = 0;
    int malo = 0;
    FILE *entrada = fopen(fichero, "rb");
    if (!entrada || bucle_abrir(base, &bd) || sqlite3_prepare_v2(bd, ALTA, -1, &alta, NULL))
        return 1;
    for (; !malo && fgets(linea, sizeof linea, entrada); ++numero) {
        if (numero == 0 || numero - primera >= lineasTransaccion(numero)) {
            malo = sqlite3_exec(bd, numero ? "COMMIT; BEGIN IMMEDIATE" : "BEGIN IMMEDIATE", NULL,
                                NULL, NULL);
            primera = numero;
        }
        malo |= insertar(alta, linea);
    }
    malo |= sqlite3_exec(bd, "COMMIT", NULL, NULL, NULL);
    sqlite3_finalize(alta);
    sqlite3_close(bd);
    fclose(entrada);
    return malo;
}

static const char *aPagina(const unsigned char *texto, char *destino)
{
    char *fin = destino;
    while (*texto) {
        const int largo = *texto < 0x80 ? 1 : 2;
        *fin++ = (char)(largo == 1 ? texto[0] : texto[0] << 6 | (texto[1] & 0x3F));
        texto += largo;
    }
    *fin = 0;
    return destino;
}

int bucle_exportar(const char *base, const char *fichero)
{
    sqlite3 *bd = NULL;
    sqlite3_stmt *lectura = NULL;
    char texto[80];
    FILE *salida = fopen(fichero, "wb");
    if (!salida || bucle_abrir(base, &bd) || sqlite3_prepare_v2(bd, LECTURA, -1, &lectura, NULL))
        return 1;
    while (sqlite3_step(lectura) == SQLITE_ROW) {
        for (int i = 0; i < CUANTAS; ++i) {
            const int ancho = COLUMNAS[i].ancho;
            if (COLUMNAS[i].numero)
                fprintf(salida, "%0*lld", ancho, (long long)sqlite3_column_int64(lectura, i));
            else
                fprintf(salida, "%-*.*s", ancho, ancho,
                        aPagina(sqlite3_column_text(lectura, i), texto));
        }
        fprintf(salida, "%07lld%07lld\r\n", (long long)sqlite3_column_int64(lectura, 14),
                (long long)sqlite3_column_int64(lectura, 15));
    }
    sqlite3_finalize(lectura);
    sqlite3_close(bd);
    return fclose(salida);
}
