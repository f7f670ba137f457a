#include "app/TablaMenus.h"

static constexpr DatosMenu TitulosMenu[] = {
    {"mnuDeclarante", Msj::MenuDeclarante},
    {"mnuUtilidades", Msj::MenuUtilidades},
    {"mnuAyuda", Msj::MenuAyuda},
};

static constexpr EntradaMenu Entradas[] = {
    {0, "mnuNuevoDeclarante", Msj::MenuNuevoDeclarante, Msj::PistaMenuNuevoDeclarante, Icono::Nuevo,
     Mando::Nuevo, SinEdicion, "Ctrl+N"},
    {0, "mnuAbrirDeclarante", Msj::MenuAbrirDeclarante, Msj::PistaMenuAbrirDeclarante, Icono::Abrir,
     Mando::Abrir, SinEdicion | ConDeclarantes, "Ctrl+O"},
    {0, "mnuEliminarDeclarante", Msj::MenuEliminarDeclarante, Msj::PistaMenuEliminarDeclarante,
     Icono::Eliminar, Mando::Eliminar, SinEdicion | ConDeclarantes},
    {0, "mnuSalir", Msj::MenuSalir, Msj::PistaMenuSalir, Icono::Salir, Mando::Salir, Siempre,
     "Ctrl+Q", true},

    {1, "mnuPendientes", Msj::MenuPendientes, Msj::PistaMenuPendientes, Icono::Pendientes,
     Pantalla::Pendientes, Siempre, "Ctrl+D"},
    {1, "mnuImportarDeclaraciones", Msj::MenuImportarDeclaraciones, Msj::PistaImportarHoja,
     Icono::Importar, Pantalla::ImportarDeclaraciones, SinEdicion | ConDeclarantes},
    {1, "mnuExport", Msj::MenuExportar, Msj::PistaMenuExportar, Icono::Exportar, Pantalla::Exportar,
     ConDeclarantes, "", true},
    {1, "mnuImport", Msj::MenuImportar, Msj::PistaMenuImportar, Icono::Importar, Pantalla::Importar,
     SinEdicion},
    {1, "mnuBackup", Msj::MenuCopiaSeguridad, Msj::PistaMenuCopiaSeguridad, Icono::Copia,
     Mando::Copia, Siempre, "", true},
    {1, "mnuRestore", Msj::MenuRestaurarCopia, Msj::PistaMenuRestaurarCopia, Icono::Restaurar,
     Mando::Restaurar, SinEdicion},
    {1, "mnuPreferencias", Msj::MenuPreferencias, Msj::PistaMenuPreferencias, Icono::Preferencias,
     Pantalla::Preferencias, Siempre, "", true},

    {2, "mnucontind", Msj::MenuContenido, Msj::PistaMenuContenido, Icono::Ayuda, Mando::Contenido,
     Siempre, "F1"},
    {2, "mnuAsistenciaOnline", Msj::MenuAsistenciaOnline, Msj::PistaMenuAsistencia,
     Icono::Asistencia, Mando::Asistencia, Siempre, "", true},
    {2, "mnuDescripAsisOnline", Msj::MenuDescripcionServicio, Msj::PistaMenuDescripcion,
     Icono::Declaracion, Mando::Descripcion},
    {2, "mnuacerca", Msj::MenuAcercaDe, Msj::PistaMenuAcercaDe, Icono::Informacion,
     Pantalla::AcercaDe, Siempre, "", true},
};

static constexpr EntradaBarra Barra[] = {
    {"nuedec", "mnuNuevoDeclarante", Msj::BarraNuevoDeclarante},
    {"abrdec", "mnuAbrirDeclarante", Msj::BarraAbrirDeclarante},
    {"elidec", "mnuEliminarDeclarante", Msj::BarraEliminarDeclarante},
    {"pendec", "mnuPendientes", Msj::BarraPendientes, true},
    {"ayu", "mnucontind", Msj::BarraAyuda, true},
    {"salir", "mnuSalir", Msj::BarraSalir, true},
};

std::span<const DatosMenu> tablaMenus()
{
    return TitulosMenu;
}

std::span<const EntradaMenu> tablaEntradas()
{
    return Entradas;
}

std::span<const EntradaBarra> tablaBarra()
{
    return Barra;
}
