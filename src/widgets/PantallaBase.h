#pragma once

#include "widgets/Mensajes.h"

#include <QWidget>

class QAbstractButton;
class QLabel;
class QPushButton;

/// The screens that one screen, or a row of the menus, may ask for; the main window opens them.
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
    Exportar,
    Importar,
    Pendientes,
    ImportarDeclaraciones,
    ImprimirVarias,
    Preferencias,
    AcercaDe,
};

/// Base of every screen, framed or modal: it answers to a change of language, guards every action
/// of the user, commits the box with the focus before an accept, asks before changed data are lost,
/// and says what is to be shown when it closes.
///
/// To add a screen: derive from this class (Anadir_captions; Actualizar when it shows stored data;
/// edita, and modificada, when it owns a record; decir for what was done), name it in `Pantalla`,
/// give it a row in app/TablaPantallas.cpp (how it is made; Ajustado, Amplio or Modal) and, when a
/// menu leads to it, a row in app/TablaMenus.cpp that names it. Nothing else: modality, frame,
/// disabling behind an edited record, language and status bar come from there and from here.
class PantallaBase : public QWidget
{
    Q_OBJECT

public:
    explicit PantallaBase(const QString &nombre, QWidget *padre = nullptr);

    /// Whether the screen owns a record while it is open, so that nothing else may rewrite it.
    /// One whose answer changes while it is open emits `cambiaEdicion`.
    virtual bool edita() const { return false; }
    /// Whether it is in the middle of a long work: nothing else can be begun until that ends.
    virtual bool trabaja() const { return false; }
    /// Whether closing now would lose what the user changed.
    virtual bool modificada() const { return false; }
    /// Sets every text in the session's language.
    virtual void Anadir_captions() = 0;
    /// Shows the stored data again; after a save, deletion or restore elsewhere.
    virtual void Actualizar() {}
    /// The same after a change of one declarant, or of its returns.
    virtual void ActualizarDeclarante(qint32 /*csco*/) { Actualizar(); }

    /// Whether closing now would lose something: a change, or a text still only typed.
    bool perderia() const;
    /// Asks before something is lost; true when the screen may close.
    bool aceptaCerrarse();
    /// Closes as the frame does, without asking.
    void abandonar();
    /// Disables what the screen holds while another one edits a record, and says why over it.
    void suspender(bool suspendida);
    /// Lets what the screen holds be scrolled where there is no room for it; whatever has the focus
    /// is kept in view. Called once, before the screen is shown.
    void envolver();

    /// Makes a dialogue of the screen, over all others.
    void hacerModal();
    /// Shows it as one and returns when it has been closed.
    void ejecutar();
    /// Who opens the screen that this one asks for before it closes; true when it is there.
    void quienAbre(std::function<bool(Pantalla)> abridor) { m_abridor = std::move(abridor); }
    /// Shows one line in the status bar of the main window: until the next one, or for some seconds
    /// when it is `pasajera`.
    void decir(const QString &texto, bool pasajera = false) { Q_EMIT dicho(texto, pasajera); }

Q_SIGNALS:
    void mostrar(Pantalla cual);
    void datosCambiados(qint32 csco = 0); ///< of one declarant, or of its returns; 0: of many
    void cambiaEdicion();
    void dicho(const QString &texto, bool pasajera);
    void cerrada();

protected:
    /// Opens another screen and closes this one; nothing closes when the other cannot be opened.
    void cerrarA(Pantalla siguiente);
    /// The same for a cancel: whatever becomes of the other one (the user has been told), this one
    /// closes.
    void abandonarA(Pantalla siguiente);
    /// What a screen closed by its frame leaves behind, and the screen to show then: what its
    /// cancel button does.
    virtual Pantalla alCerrarMarco() { return Pantalla::Ninguna; }
    /// Called after the texts when the language has changed: lists asked for again, periods, masks.
    virtual void alCambiarIdioma() {}

    /// Takes what is still only typed in a box into the record; false when it was refused.
    bool confirmarCajas();
    /// Forgets what is still only typed.
    void descartarCajas();
    /// Connects a button to a guarded action that first commits the box with the focus.
    void alPulsar(QAbstractButton *boton, const std::function<void()> &accion);
    /// The same without committing: cancel buttons.
    void alPulsarSinConfirmar(QAbstractButton *boton, const std::function<void()> &accion);
    void aviso(const QString &texto);

    /// Whether the screen is being opened and nothing that can be seen has the focus yet.
    bool entraSinFoco(const QShowEvent &evento) const;
    void changeEvent(QEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;

private:
    void cerrar();
    void salir(Pantalla siguiente);
    void centrar();
    void colocarVelo();
    void dejar();

    std::function<bool(Pantalla)> m_abridor;
    QLabel *m_velo = nullptr; ///< why the screen cannot be used now
    Pantalla m_siguiente = Pantalla::Ninguna;
    bool m_terminada = false;
};

/// The screen that a control is on; null outside of one.
PantallaBase *pantallaDe(QWidget *control);
/// Takes the session's language to every window and screen; called after a change of it.
void anunciarIdioma();
/// Caption of the window that a control is in, for what is told about it.
QString tituloDe(QWidget *control);
