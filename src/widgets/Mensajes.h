#pragma once

#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

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
