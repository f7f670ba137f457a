#pragma once

#include "core/Textos.h"
#include "widgets/Iconos.h"
#include "widgets/PantallaBase.h"

#include <QKeySequence>

#include <span>
#include <variant>

/// What an entry does when it is more than opening a screen.
enum class Mando {
    Nuevo,
    Abrir,
    Eliminar,
    Salir,
    Copia,
    Restaurar,
    Contenido,
    Asistencia,
    Descripcion,
};

/// Where an entry leads; nowhere while its part of the program is still to come.
using Destino = std::variant<std::monostate, Pantalla, Mando>;

/// When an entry can be used.
enum Condicion {
    Siempre = 0,
    SinEdicion = 1, ///< it would rewrite a record that an open screen is editing
    ConDeclarantes = 2, ///< it acts on stored declarants
};

struct DatosMenu
{
    const char *nombre;
    Msj texto;
};

struct EntradaMenu
{
    int menu; ///< position in the table of menus
    const char *nombre;
    Msj texto;
    Msj pista;
    Icono icono;
    Destino destino;
    int condiciones = Siempre;
    const char *atajo = ""; ///< portable text of a key sequence
    bool trasSeparador = false;
};

struct EntradaBarra
{
    const char *nombre;
    const char *entrada; ///< the entry of a menu that it repeats
    Msj texto;
    bool trasSeparador = false;
};

std::span<const DatosMenu> tablaMenus();
std::span<const EntradaMenu> tablaEntradas(); ///< in the order of the menus
std::span<const EntradaBarra> tablaBarra();
