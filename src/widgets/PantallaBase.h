#pragma once

#include "widgets/Procedimiento.h"

#include <QWidget>

class QAbstractButton;
class QPushButton;

/// The screens that one screen may ask for; the main window opens them.
enum class Pantalla {
    Ninguna,
    DatosDeclarante,
    ListaDeclarantes,
    Resumen,
    Datos430,
    Datos480a,
    Datos480b,
    Datos480c,
    Impresion,
};

/// Base of the screens inside the main window. It answers to a change of language, guards every
/// action of the user, commits the box with the focus before an accept, and says what is to be
/// shown when it closes.
class PantallaBase : public QWidget
{
    Q_OBJECT

public:
    explicit PantallaBase(const QString &nombre, QWidget *padre = nullptr);

    /// Whether the screen owns a record while it is open, so that nothing else may rewrite it.
    virtual bool edita() const { return false; }
    /// Sets every text in the session's language.
    virtual void Anadir_captions() = 0;
    /// Shows the stored data again; after a save, deletion or restore elsewhere.
    virtual void Actualizar() {}

Q_SIGNALS:
    void mostrar(Pantalla cual);
    void datosCambiados();

protected:
    /// Closes the screen and then asks for another one.
    void cerrarA(Pantalla siguiente);
    /// What a screen closed by its frame leaves behind, and the screen to show then: what its
    /// cancel button does.
    virtual Pantalla alCerrarMarco() { return Pantalla::Ninguna; }
    /// Called after the texts when the language has changed: lists asked for again, periods, masks.
    virtual void alCambiarIdioma() {}

    /// Takes what is still only typed in a box into the record; false when it was refused.
    bool confirmarCajas();
    /// Connects a button to a guarded action that first commits the box with the focus.
    void alPulsar(QAbstractButton *boton, const std::function<void()> &accion);
    /// The same without committing: cancel buttons.
    void alPulsarSinConfirmar(QAbstractButton *boton, const std::function<void()> &accion);
    void aviso(const QString &texto);

    void changeEvent(QEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    Pantalla m_siguiente = Pantalla::Ninguna;
    bool m_terminada = false;
};
