#include "maintenance/FrmSinConexion.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "maintenance/cActOnline.h"
#include "widgets/Disposicion.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

FrmSinConexion::FrmSinConexion(QWidget *padre)
    : PantallaInforme(u"FrmSinConexion"_s, Icono::Asistencia, 56, u"CmdContinuar"_s, padre)
    , m_lblTituloE(anadirTexto(u"lblTituloE"_s))
    , m_lblTituloC(anadirTexto(u"lblTituloC"_s))
    , m_lblMensaje(anadirTexto(u"lblMensaje"_s))
{
    anadir(nuevaRaya(this));
    m_lblPista = anadirTexto(u"lblPista"_s);
    m_chkNoPreg = new QCheckBox(this);
    m_chkNoPreg->setObjectName(u"ChkNoPreg"_s);
    anadir(m_chkNoPreg);
    for (auto *titulo : {m_lblTituloE, m_lblTituloC})
        agrandarLetra(titulo, 1.3);
    for (auto *texto : {m_lblMensaje, m_lblPista}) {
        texto->setWordWrap(true);
        texto->setMinimumWidth(52 * fontMetrics().averageCharWidth());
    }
    Anadir_captions();
    m_chkNoPreg->setChecked(unico::la<cActOnline>().ActOnline() == 0);
    // only for this session: it is stored when the preferences are accepted
    connect(m_chkNoPreg, &QCheckBox::toggled, this,
            [](bool no) { unico::la<cActOnline>().ActOnline(no ? 0 : 1); });
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
    m_cmdCerrar->setText(msj(Msj::BotonContinuar));
}
