#include "app/frmAbout.h"

#include "core/Textos.h"
#include "widgets/Disposicion.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmAbout::frmAbout(QWidget *padre)
    : PantallaInforme(u"frmAbout"_s, Icono::Programa, 80, u"cmdAceptar"_s, padre)
    , m_lblTitulo(anadirTexto(u"lblTitulo"_s))
    , m_lblTexto(anadirTexto(u"lblTexto"_s))
    , m_lblVersion(anadirTexto(u"lblVersion"_s))
    , m_lblDiputacion(anadirTexto(u"lblDiputacion"_s))
{
    for (auto *etiqueta : {m_lblTitulo, m_lblTexto, m_lblVersion, m_lblDiputacion})
        etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    agrandarLetra(m_lblTitulo, 1.7);
    Anadir_captions();
}

void frmAbout::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloAcercaDe));
    m_lblTitulo->setText(msj(Msj::TituloPrograma));
    m_lblTexto->setText(msj(Msj::TextoAcercaDe));
    m_lblVersion->setText(msj(Msj::VersionPrograma, QCoreApplication::applicationVersion()));
    m_lblDiputacion->setText(msj(Msj::NombreDiputacion));
    m_cmdCerrar->setText(msj(Msj::BotonAceptar));
}
