#include "app/TextosQt.h"

#include "core/Textos.h"

#include <string_view>

namespace {

struct TextoQt
{
    std::string_view texto;
    Msj nuestro;
    bool conAcceso = true; ///< the access key belongs to it
};

} // namespace

static constexpr TextoQt Textos[] = {
    {"&Restore", Msj::MarcoRestaurar},
    {"&Move", Msj::MarcoMover},
    {"&Size", Msj::MarcoTamano},
    {"Mi&nimize", Msj::MarcoMinimizar},
    {"Ma&ximize", Msj::MarcoMaximizar},
    {"Stay on &Top", Msj::MarcoEncima},
    {"&Close", Msj::MarcoCerrar},
    {"Restore Down", Msj::MarcoRestaurar, false},
    {"Restore", Msj::MarcoRestaurar, false},
    {"Minimize", Msj::MarcoMinimizar, false},
    {"Maximize", Msj::MarcoMaximizar, false},
    {"Close", Msj::MarcoCerrar, false},
    {"&Undo", Msj::EdicionDeshacer},
    {"&Redo", Msj::EdicionRehacer},
    {"Cu&t", Msj::EdicionCortar},
    {"&Copy", Msj::EdicionCopiar},
    {"&Paste", Msj::EdicionPegar},
    {"Delete", Msj::EdicionBorrar},
    {"Select All", Msj::EdicionSeleccionarTodo},
};

static bool esNuestro(std::string_view contexto)
{
    return contexto == "QMdiSubWindow" || contexto == "QLineEdit"
        || contexto == "QWidgetTextControl" || contexto == "QAbstractSpinBox";
}

QString TextosQt::translate(const char *contexto, const char *texto, const char *, int) const
{
    if (!contexto || !texto || !esNuestro(contexto))
        return {};
    for (const auto &fila : Textos) {
        if (fila.texto == texto)
            return fila.conAcceso ? msj(fila.nuestro) : msj(fila.nuestro).remove(u'&');
    }
    return {};
}
