#pragma once

#include "widgets/PantallaBase.h"

#include <QHash>
#include <QPointer>

class QMdiArea;
class QMdiSubWindow;

/// How a screen is made and framed.
struct DatosPantalla
{
    enum Marco { Ajustado, Amplio, Modal };

    Pantalla cual;
    PantallaBase *(*crear)(QWidget *padre);
    Marco marco;
    bool (*caduca)() = nullptr; ///< whether one that is open must give way to a new one
};

/// The row of a screen.
const DatosPantalla *datosPantalla(Pantalla cual);

/// The screens open inside the main window, each at most once. It opens what a screen asks for.
class Pantallas : public QObject
{
    Q_OBJECT

public:
    Pantallas(QMdiArea *area, QWidget *ventana);

    /// Opens a screen, or brings it forward and shows its data again when it is open; false when
    /// that failed, which the user has been told.
    bool abrir(Pantalla cual);
    /// Closes a screen and does not open what it asks for.
    void cerrar(Pantalla cual);
    /// Gives the focus back to the field that had it in the screen in front.
    void enfocar();
    /// Whether every screen may close; asks where something would be lost.
    bool puedenCerrarse();
    /// Shows the stored data again in every screen that is not editing, and says that they changed.
    void actualizar() { avisarCambio(nullptr, 0); }
    /// Closes them all; from then on none opens.
    void terminar();
    /// Whether a screen is open that owns its record.
    bool editando() const;
    /// Whether one is open that is in the middle of a long work.
    bool trabajando() const;

Q_SIGNALS:
    void cambiadas(); ///< one was opened or closed
    void datosCambiados(); ///< stored data changed
    void dicho(const QString &texto, bool pasajera); ///< a line for the status bar

private:
    PantallaBase *pantalla(Pantalla cual) const;
    bool alguna(bool (PantallaBase::*condicion)() const) const;
    void mostrarNueva(const DatosPantalla &datos);
    void enmarcar(PantallaBase *nueva, bool amplia);
    bool abrirTras(PantallaBase *saliente, Pantalla siguiente);
    void traerDelante(PantallaBase *abierta);
    void mostrarDelante(PantallaBase *abierta);
    void suspenderOtras();
    void devolverDelante(const QMdiSubWindow *pulsada);
    void olvidar(const PantallaBase *desaparecida);
    void avisarCambio(const PantallaBase *autora, qint32 csco);

    QMdiArea *m_area;
    QWidget *m_ventana;
    QHash<Pantalla, PantallaBase *> m_abiertas;
    const PantallaBase *m_saliente = nullptr; ///< about to close for another one
    QHash<const QWidget *, QPointer<QWidget>> m_focos; ///< what had the focus in those that wait
    bool m_terminado = false;
};
