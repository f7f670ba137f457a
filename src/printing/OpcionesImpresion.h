#pragma once

#include <QWidget>

class CajaFecha;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class cImOf;

/// What every print screen asks for: official form or draft, which copies, presentation date. It
/// shows and changes the request given to it, which starts with the official form, both copies and
/// today.
class OpcionesImpresion : public QWidget
{
    Q_OBJECT

public:
    OpcionesImpresion(cImOf &peticion, QWidget *padre);

    void Anadir_captions();
    void PresentaDatos();
    /// Takes the date into the request; false, with the reason told, when it is refused.
    bool ValidarFecha();
    /// The controls in the order of Tab.
    QList<QWidget *> orden() const;

Q_SIGNALS:
    void cambiada();

private:
    void disponer();
    void conectar();
    void alMarcar(bool marcada, void (cImOf::*propiedad)(const QString &));

    cImOf &m_peticion;
    QGroupBox *m_frameTipo;
    QButtonGroup *m_opt;
    QGroupBox *m_fraDestinatario;
    QCheckBox *m_chkInteresado;
    QCheckBox *m_chkAdministracion;
    QGroupBox *m_fraFecha;
    CajaFecha *m_txtFecha;
};
