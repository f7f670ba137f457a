#include "maintenance/frmPreferencias.h"

#include "core/CEntrada.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "maintenance/BuscarActualizacion.h"
#include "maintenance/cActOnline.h"
#include "widgets/BarraBotones.h"
#include "widgets/Disposicion.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

static int &abiertas()
{
    static int cuantas = 0;
    return cuantas;
}

bool frmPreferencias::abierta()
{
    return abiertas() > 0;
}

frmPreferencias::frmPreferencias(QWidget *padre)
    : PantallaBase(u"frmPreferencias"_s, padre)
    , m_lblIdioma(nuevaEtiqueta(u"lblIdioma"_s, this))
    , m_lblActualizaciones(nuevaEtiqueta(u"lblActualizaciones"_s, this))
    , m_optCast(new QRadioButton(this))
    , m_optEusk(new QRadioButton(this))
    , m_chkActOnline(new QCheckBox(this))
    , m_lblActAhora(boton(u"lblActAhora"_s))
    , m_cmdAceptar(boton(u"cmdAceptar"_s))
    , m_cmdCancelar(boton(u"cmdCancelar"_s))
{
    ++abiertas();
    m_optCast->setObjectName(u"optCast"_s);
    m_optEusk->setObjectName(u"optEusk"_s);
    m_chkActOnline->setObjectName(u"chkActOnline"_s);
    disponer();
    m_chkActOnline->setChecked(unico::la<cActOnline>().ActOnline() == 1);
    (unico::la<CEntrada>().IDI() == u"C" ? m_optCast : m_optEusk)->setChecked(true);
    Anadir_captions();
    alPulsar(m_lblActAhora, [this] { buscarAhora(); });
    alPulsar(m_cmdAceptar, [this] { aceptar(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarA(Pantalla::Ninguna); });
}

frmPreferencias::~frmPreferencias()
{
    --abiertas();
}

QPushButton *frmPreferencias::boton(const QString &nombre)
{
    auto *nuevo = new QPushButton(this);
    nuevo->setObjectName(nombre);
    return nuevo;
}

void frmPreferencias::disponer()
{
    // a label that is clicked, and reached with the keyboard too
    m_lblActAhora->setFlat(true);
    m_lblActAhora->setCursor(Qt::PointingHandCursor);
    QPalette enlace = m_lblActAhora->palette();
    enlace.setColor(QPalette::ButtonText, enlace.color(QPalette::Link));
    m_lblActAhora->setPalette(enlace);
    QFont subrayada = m_lblActAhora->font();
    subrayada.setUnderline(true);
    m_lblActAhora->setFont(subrayada);

    auto *idiomas = new QHBoxLayout;
    idiomas->addWidget(m_optCast);
    idiomas->addWidget(m_optEusk);
    idiomas->addStretch();
    auto *botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(m_cmdAceptar);
    botones->addWidget(m_cmdCancelar);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenDialogo);
    todo->setSpacing(10);
    todo->addWidget(m_lblIdioma);
    todo->addLayout(idiomas);
    todo->addWidget(nuevaRaya(this));
    todo->addWidget(m_lblActualizaciones);
    todo->addWidget(m_chkActOnline);
    todo->addWidget(m_lblActAhora, 0, Qt::AlignLeft);
    todo->addSpacing(8);
    todo->addLayout(botones);
}

void frmPreferencias::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloPreferencias));
    m_lblIdioma->setText(msj(Msj::Idioma));
    m_optCast->setText(msj(Msj::IdiomaCastellano));
    m_optEusk->setText(msj(Msj::IdiomaEuskera));
    m_lblActualizaciones->setText(msj(Msj::Actualizaciones));
    m_chkActOnline->setText(msj(Msj::ActivarActualizaciones));
    m_lblActAhora->setText(msj(Msj::BuscandoActualizacion));
    m_lblActAhora->setToolTip(msj(Msj::PistaBuscarAhora));
    captionsAceptarCancelar(m_cmdAceptar, m_cmdCancelar);
}

void frmPreferencias::aceptar()
{
    auto &estado = unico::la<cActOnline>();
    const auto anterior = estado.ActOnline();
    try {
        estado.ActOnline(m_chkActOnline->isChecked() ? 1 : 0);
        estado.GuardarActOnline();
    } catch (...) {
        estado.ActOnline(anterior);
        throw;
    }
    unico::la<CEntrada>().IDI(m_optCast->isChecked() ? u"C"_s : u"E"_s);
    anunciarIdioma();
    cerrarA(Pantalla::Ninguna);
}

void frmPreferencias::buscarAhora()
{
    const auto &estado = unico::la<cActOnline>();
    const auto anterior = estado.ActOnline();
    m_buscando = true;
    buscarActualizacion(this);
    m_buscando = false;
    if (estado.ActOnline() != anterior) // on the no-connection screen
        m_chkActOnline->setChecked(estado.ActOnline() == 1);
}

void frmPreferencias::closeEvent(QCloseEvent *evento)
{
    if (m_buscando)
        evento->ignore();
    else
        PantallaBase::closeEvent(evento);
}
