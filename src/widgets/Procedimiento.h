#pragma once

#include "core/Textos.h"

#include <utility>

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
