#pragma once

#include <Qt>

class QWidget;

/// A field that holds what is typed until it is left or told to hand it over.
class Confirmable
{
public:
    virtual ~Confirmable() = default;
    /// Hands over what the user typed, if anything; false when it was refused (the user has been
    /// told), and then the text stays and the field takes the focus back.
    virtual bool confirmar() = 0;
    /// Whether something is typed that has not been handed over.
    virtual bool pendiente() const = 0;
    /// Forgets it: the field shows again what the program last put into it.
    virtual void descartar() = 0;
};

/// Marks a button of the sort "cancel": clicking it leaves the field with the focus as it is, so
/// that a wrong text in it cannot stand between the user and the way out.
inline constexpr const char *NoConfirma = "noConfirma";

/// Whether the focus only passes by: it will come back from a menu or another window.
bool focoDePaso(Qt::FocusReason motivo);
/// Whether a field that has just lost the focus is to hand over what was typed.
bool confirmaAlSalir(Qt::FocusReason motivo);
/// Whether a field that is being hidden went with its part of the screen, not with all of it.
bool abandonada(QWidget *campo);
/// Gives the focus to a field that is to be put right, its text selected, unless nobody sees it any
/// longer; whether it did.
bool recuperarFoco(QWidget *campo, Qt::FocusReason motivo = Qt::OtherFocusReason);
