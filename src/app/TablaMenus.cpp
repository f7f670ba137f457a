#include "app/TablaMenus.h"

static constexpr DatosMenu Menus[] = {
    {"mnuDeclarante", Msj::MenuDeclarante},
    {"mnuUtilidades", Msj::MenuUtilidades},
    {"mnuAyuda", Msj::MenuAyuda},
};

static constexpr EntradaMenu Entradas[] = {
    {0, Mando::Nuevo, "mnuNuevoDeclarante", Msj::MenuNuevoDeclarante, Msj::PistaMenuNuevoDeclarante,
     Icono::Nuevo, SinEdicion, "Ctrl+N"},
    {0, Mando::Abrir, "mnuAbrirDeclarante", Msj::MenuAbrirDeclarante, Msj::PistaMenuAbrirDeclarante,
     Icono::Abrir, SinEdicion | ConDeclarantes, "Ctrl+O"},
    {0, Mando::Eliminar, "mnuEliminarDeclarante", Msj::MenuEliminarDeclarante,
     Msj::PistaMenuEliminarDeclarante, Icono::Eliminar, SinEdicion | ConDeclarantes},
    {0, Mando::Salir, "mnuSalir", Msj::MenuSalir, Msj::PistaMenuSalir, Icono::Salir, Siempre,
     "Ctrl+Q", true},

    {1, Mando::Exportar, "mnuExport", Msj::MenuExportar, Msj::PistaMenuExportar, Icono::Exportar,
     ConDeclarantes | Venidera},
    {1, Mando::Importar, "mnuImport", Msj::MenuImportar, Msj::PistaMenuImportar, Icono::Importar,
     SinEdicion | Venidera},
    {1, Mando::Copia, "mnuBackup", Msj::MenuCopiaSeguridad, Msj::PistaMenuCopiaSeguridad,
     Icono::Copia, Venidera, "", true},
    {1, Mando::Restaurar, "mnuRestore", Msj::MenuRestaurarCopia, Msj::PistaMenuRestaurarCopia,
     Icono::Restaurar, SinEdicion | Venidera},
    {1, Mando::Preferencias, "mnuPreferencias", Msj::MenuPreferencias, Msj::PistaMenuPreferencias,
     Icono::Preferencias, Venidera, "", true},

    {2, Mando::Contenido, "mnucontind", Msj::MenuContenido, Msj::PistaMenuContenido, Icono::Ayuda,
     Venidera, "F1"},
    {2, Mando::Asistencia, "mnuAsistenciaOnline", Msj::MenuAsistenciaOnline,
     Msj::PistaMenuAsistencia, Icono::Asistencia, Venidera, "", true},
    {2, Mando::Descripcion, "mnuDescripAsisOnline", Msj::MenuDescripcionServicio,
     Msj::PistaMenuDescripcion, Icono::Declaracion, Venidera},
    {2, Mando::AcercaDe, "mnuacerca", Msj::MenuAcercaDe, Msj::PistaMenuAcercaDe, Icono::Informacion,
     Siempre, "", true},
};

static constexpr EntradaBarra Barra[] = {
    {"nuedec", Mando::Nuevo, Msj::BarraNuevoDeclarante},
    {"abrdec", Mando::Abrir, Msj::BarraAbrirDeclarante},
    {"elidec", Mando::Eliminar, Msj::BarraEliminarDeclarante},
    {"ayu", Mando::Contenido, Msj::BarraAyuda, true},
    {"salir", Mando::Salir, Msj::BarraSalir, true},
};

std::span<const DatosMenu> tablaMenus()
{
    return Menus;
}

std::span<const EntradaMenu> tablaEntradas()
{
    return Entradas;
}

std::span<const EntradaBarra> tablaBarra()
{
    return Barra;
}
