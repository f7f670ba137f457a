#pragma once

#include "core/MarcaCarga.h"
#include "core/Textos.h"

#include <QString>

#include <functional>
#include <utility>

class QMessageBox;
class QWidget;

/// Puts the busy pointer up for as long as it lives.
class PunteroOcupado
{
public:
    PunteroOcupado();
    ~PunteroOcupado();
    PunteroOcupado(const PunteroOcupado &) = delete;
    PunteroOcupado &operator=(const PunteroOcupado &) = delete;
};

/// Tells the user that what `pantalla` was asked for could not be done, and why.
void avisarFallo(QWidget *pantalla, const QString &motivo);

/// Runs one action of the user. An exception ends it there: screen and data stay as they are, the
/// user is told, and the result is false.
template <class Accion> bool procedimiento(QWidget *pantalla, Accion &&accion)
{
    QString motivo;
    try {
        std::forward<Accion>(accion)();
        return true;
    } catch (...) {
        motivo = textoFalloActual();
    }
    avisarFallo(pantalla, motivo);
    return false;
}

/// Every message box and question of the program: `titulo` is the caption of the screen that asks,
/// buttons are in the session's language.
namespace mensajes {

void aviso(QWidget *padre, const QString &titulo, const QString &texto); ///< exclamation
void informacion(QWidget *padre, const QString &titulo, const QString &texto); ///< information

/// Yes or no, "No" being the default button and Escape; true for yes.
bool pregunta(QWidget *padre, const QString &titulo, const QString &texto);

/// Tells that a file was saved: the user may open it, or its folder.
enum class Abrir { Nada, Fichero, Carpeta };
Abrir guardado(QWidget *padre, const QString &titulo, const QString &texto);

/// Whether what is stored is to be replaced (Yes), kept (No), or neither for now, which is the
/// default button and Escape.
enum class Sustituir { Si, No, Cancelar };
Sustituir sustituir(QWidget *padre, const QString &titulo, const QString &texto);

/// The same about one of many; an answer "to all" is meant for the others too.
enum class Respuesta { Si, No, SiATodos, NoATodos };
Respuesta preguntaDeVarias(QWidget *padre, const QString &titulo, const QString &texto);

/// Called with each box just before it opens; tests read and answer the real window through it.
using Observador = std::function<void(QMessageBox &)>;
void observar(Observador observador);

} // namespace mensajes

class PantallaBase;

/// What the user wants of a save over a record that another copy of the program may have changed
/// since it was loaded.
enum class Decision {
    Guardar, ///< nothing was changed, or it is to be replaced
    Conservar, ///< what is stored is to be loaded again
    Seguir, ///< neither: back to the screen, nothing is lost
};

/// Asks when `estado` calls for it; `nombre` is the record as the user knows it.
Decision consultarGuardado(PantallaBase *pantalla, EstadoCarga estado, const QString &nombre);
