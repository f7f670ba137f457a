#include "maintenance/FrmSinConexion.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "maintenance/cActOnline.h"
#include "widgets/Disposicion.h"
#include "widgets/Iconos.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

FrmSinConexion::FrmSinConexion(QWidget *padre)
    : PantallaBase(u"FrmSinConexion"_s, padre)
    , m_lblTituloC(nuevaEtiqueta(u"lblTituloC"_s, this))
    , m_lblTituloE(nuevaEtiqueta(u"lblTituloE"_s, this))
    , m_lblMensaje(nuevaEtiqueta(u"lblMensaje"_s, this))
    , m_lblPista(nuevaEtiqueta(u"lblPista"_s, this))
    , m_chkNoPreg(new QCheckBox(this))
    , m_cmdContinuar(new QPushButton(this))
{
    m_chkNoPreg->setObjectName(u"ChkNoPreg"_s);
    m_cmdContinuar->setObjectName(u"CmdContinuar"_s);
    disponer();
    Anadir_captions();
    m_chkNoPreg->setChecked(unico::la<cActOnline>().ActOnline() == 0);
    // only for this session: it is stored when the preferences are accepted
    connect(m_chkNoPreg, &QCheckBox::toggled, this,
            [](bool no) { unico::la<cActOnline>().ActOnline(no ? 0 : 1); });
    alPulsar(m_cmdContinuar, [this] { cerrarA(Pantalla::Ninguna); });
    m_cmdContinuar->setFocus();
}

void FrmSinConexion::disponer()
{
    for (auto *titulo : {m_lblTituloE, m_lblTituloC})
        agrandarLetra(titulo, 1.3);
    for (auto *texto : {m_lblMensaje, m_lblPista}) {
        texto->setWordWrap(true);
        texto->setMinimumWidth(52 * fontMetrics().averageCharWidth());
    }
    auto *dibujo = new QLabel(this);
    dibujo->setPixmap(icono(Icono::Asistencia).pixmap(QSize(56, 56), devicePixelRatioF()));

    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(MargenDialogo);
    rejilla->setHorizontalSpacing(20);
    rejilla->setVerticalSpacing(10);
    rejilla->addWidget(dibujo, 0, 0, 2, 1, Qt::AlignTop);
    rejilla->addWidget(m_lblTituloE, 0, 1);
    rejilla->addWidget(m_lblTituloC, 1, 1);
    rejilla->addWidget(m_lblMensaje, 2, 1);
    rejilla->addWidget(nuevaRaya(this), 3, 0, 1, 2);
    rejilla->addWidget(m_lblPista, 4, 1);
    rejilla->addWidget(m_chkNoPreg, 5, 1);
    rejilla->addWidget(m_cmdContinuar, 6, 1, Qt::AlignRight);
}

void FrmSinConexion::Anadir_captions()
{
    const bool ilegible = unico::la<cActOnline>().SitAct() == cActOnline::Ilegible;
    const Msj titulo = ilegible ? Msj::TituloDatosErroneos : Msj::TituloFalloConexion;
    const Msj mensaje = ilegible ? Msj::DatosActualizacionErroneos : Msj::FalloConexion;
    setWindowTitle(msj(titulo));
    m_lblTituloC->setText(msj(titulo, Idioma::Castellano));
    m_lblTituloE->setText(msj(titulo, Idioma::Euskera));
    m_lblMensaje->setText(msj(mensaje));
    m_lblPista->setText(msj(Msj::PistaSinConexion));
    m_chkNoPreg->setText(msj(Msj::NoBuscarAlIniciar));
    m_cmdContinuar->setText(msj(Msj::BotonContinuar));
}
