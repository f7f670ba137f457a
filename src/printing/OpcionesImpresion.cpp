#include "printing/OpcionesImpresion.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"
#include "printing/cImOf.h"
#include "widgets/CajaTexto.h"
#include "widgets/Mensajes.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDate>
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

enum { Oficial, Borrador };

template <class Control> static Control *crear(const QString &nombre, QWidget *padre)
{
    auto *control = new Control(padre);
    control->setObjectName(nombre);
    return control;
}

OpcionesImpresion::OpcionesImpresion(cImOf &peticion, QWidget *padre)
    : QWidget(padre)
    , m_peticion(peticion)
    , m_frameTipo(crear<QGroupBox>(u"frameTipoImpreso"_s, this))
    , m_opt(new QButtonGroup(this))
    , m_fraDestinatario(crear<QGroupBox>(u"fraDestinatario"_s, this))
    , m_chkInteresado(crear<QCheckBox>(u"chkCopiaInteresado"_s, m_fraDestinatario))
    , m_chkAdministracion(crear<QCheckBox>(u"chkCopiaAdministracion"_s, m_fraDestinatario))
    , m_fraFecha(crear<QGroupBox>(u"fraFechaDePresentacion"_s, this))
    , m_txtFecha(new CajaFecha(u"txtFechaPresentacion"_s, m_fraFecha))
{
    setObjectName(u"fraOpciones"_s);
    disponer();
    Anadir_captions();
    const QDate hoy = QDate::currentDate();
    m_txtFecha->mostrarFecha(hoy.year() * 10000 + hoy.month() * 100 + hoy.day());
    m_peticion.PedirOficial();
    PresentaDatos();
    conectar();
}

void OpcionesImpresion::disponer()
{
    m_opt->setObjectName(u"optTipoImpreso"_s);
    auto *tipos = new QHBoxLayout(m_frameTipo);
    for (const int tipo : {Oficial, Borrador}) {
        auto *opcion
            = crear<QRadioButton>(u"optTipoImpreso"_s + QString::number(tipo), m_frameTipo);
        m_opt->addButton(opcion, tipo);
        tipos->addWidget(opcion);
    }
    auto *copias = new QHBoxLayout(m_fraDestinatario);
    copias->addWidget(m_chkInteresado);
    copias->addWidget(m_chkAdministracion);
    auto *fecha = new QHBoxLayout(m_fraFecha);
    fecha->addWidget(m_txtFecha);
    fecha->addStretch(1);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    for (auto *grupo : {m_frameTipo, m_fraDestinatario, m_fraFecha})
        todo->addWidget(grupo);
}

QList<QWidget *> OpcionesImpresion::orden() const
{
    return {m_opt->button(Oficial), m_opt->button(Borrador), m_chkInteresado, m_chkAdministracion,
            m_txtFecha};
}

void OpcionesImpresion::Anadir_captions()
{
    m_frameTipo->setTitle(msj(Msj::TipoImpreso));
    m_opt->button(Oficial)->setText(msj(Msj::ImpresoOficial));
    m_opt->button(Borrador)->setText(msj(Msj::ImpresoBorrador));
    m_fraDestinatario->setTitle(msj(Msj::Destinatario));
    m_chkInteresado->setText(msj(Msj::CopiaInteresado));
    m_chkAdministracion->setText(msj(Msj::CopiaAdministracion));
    m_fraFecha->setTitle(msj(Msj::FechaPresentacion));
    m_txtFecha->setAccessibleName(msj(Msj::FechaPresentacion));
}

void OpcionesImpresion::PresentaDatos()
{
    const QSignalBlocker sinGrupo(m_opt);
    const QSignalBlocker sinInteresado(m_chkInteresado);
    const QSignalBlocker sinAdministracion(m_chkAdministracion);
    const bool oficial = m_peticion.TIPOIMP() == u"O";
    m_opt->button(oficial ? Oficial : Borrador)->setChecked(true);
    m_chkInteresado->setEnabled(oficial);
    m_chkAdministracion->setEnabled(oficial);
    m_chkInteresado->setChecked(m_peticion.COPIAINT() == u"X");
    m_chkAdministracion->setChecked(m_peticion.COPIAADM() == u"X");
}

void OpcionesImpresion::conectar()
{
    connect(m_opt, &QButtonGroup::idToggled, this, [this](int tipo, bool elegido) {
        if (!elegido)
            return;
        tipo == Oficial ? m_peticion.PedirOficial() : m_peticion.PedirBorrador();
        PresentaDatos();
        Q_EMIT cambiada();
    });
    connect(m_chkInteresado, &QCheckBox::toggled, this,
            [this](bool marcada) { alMarcar(marcada, &cImOf::COPIAINT); });
    connect(m_chkAdministracion, &QCheckBox::toggled, this,
            [this](bool marcada) { alMarcar(marcada, &cImOf::COPIAADM); });
}

void OpcionesImpresion::alMarcar(bool marcada, void (cImOf::*propiedad)(const QString &))
{
    (m_peticion.*propiedad)(marcada ? u"X"_s : QString());
    PresentaDatos();
    Q_EMIT cambiada();
}

bool OpcionesImpresion::ValidarFecha()
{
    const auto leida = comprobarFechaPresentacion(m_txtFecha->text(), unico::la<cFecha>());
    if (leida.valida()) {
        m_peticion.FECHAPRE(leida.fecha);
    } else {
        mensajes::aviso(this, leida.titulo, leida.mensaje);
        recuperarFoco(m_txtFecha);
    }
    return leida.valida();
}
