#pragma once

#include "core/Textos.h"
#include "widgets/Iconos.h"

#include <QKeySequence>

#include <span>

/// What the menus and the tool bar can be asked for; the recent declarants stand apart.
enum class Mando {
    Nuevo,
    Abrir,
    Eliminar,
    Salir,
    Exportar,
    Importar,
    Copia,
    Restaurar,
    Preferencias,
    Contenido,
    Asistencia,
    Descripcion,
    AcercaDe,
};

/// When an entry can be used.
enum Condicion {
    Siempre = 0,
    SinEdicion = 1, ///< it would rewrite a record that an open screen is editing
    ConDeclarantes = 2, ///< it acts on stored declarants
    Venidera = 4, ///< its screen is not there yet
};

struct DatosMenu
{
    const char *nombre;
    Msj texto;
};

struct EntradaMenu
{
    int menu; ///< position in TablaMenus
    Mando mando;
    const char *nombre;
    Msj texto;
    Msj pista;
    Icono icono;
    int condiciones = Siempre;
    const char *atajo = ""; ///< portable text of a key sequence
    bool trasSeparador = false;
};

struct EntradaBarra
{
    const char *nombre;
    Mando mando;
    Msj texto;
    bool trasSeparador = false;
};

std::span<const DatosMenu> tablaMenus();
std::span<const EntradaMenu> tablaEntradas(); ///< in the order of the menus
std::span<const EntradaBarra> tablaBarra();
