#include "app/frmAbout.h"

#include "core/Textos.h"
#include "widgets/Disposicion.h"
#include "widgets/Iconos.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmAbout::frmAbout(QWidget *padre)
    : PantallaBase(u"frmAbout"_s, padre)
    , m_lblTitulo(nuevaEtiqueta(u"lblTitulo"_s, this))
    , m_lblTexto(nuevaEtiqueta(u"lblTexto"_s, this))
    , m_lblVersion(nuevaEtiqueta(u"lblVersion"_s, this))
    , m_lblDiputacion(nuevaEtiqueta(u"lblDiputacion"_s, this))
    , m_cmdAceptar(new QPushButton(this))
{
    m_cmdAceptar->setObjectName(u"cmdAceptar"_s);
    m_cmdAceptar->setFocus();
    alPulsar(m_cmdAceptar, [this] { cerrarA(Pantalla::Ninguna); });
    for (auto *etiqueta : {m_lblTitulo, m_lblTexto, m_lblVersion, m_lblDiputacion})
        etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    agrandarLetra(m_lblTitulo, 1.7);
    auto *emblema = new QLabel(this);
    emblema->setPixmap(icono(Icono::Programa).pixmap(QSize(80, 80), devicePixelRatioF()));

    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(MargenDialogo);
    rejilla->setHorizontalSpacing(24);
    rejilla->setVerticalSpacing(8);
    rejilla->addWidget(emblema, 0, 0, 4, 1, Qt::AlignTop);
    rejilla->addWidget(m_lblTitulo, 0, 1);
    rejilla->addWidget(m_lblTexto, 1, 1);
    rejilla->addWidget(m_lblVersion, 2, 1);
    rejilla->addWidget(m_lblDiputacion, 3, 1);
    rejilla->setRowMinimumHeight(4, 12);
    rejilla->addWidget(m_cmdAceptar, 5, 1, Qt::AlignRight);
    rejilla->setSizeConstraint(QLayout::SetFixedSize);
    Anadir_captions();
}

void frmAbout::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloAcercaDe));
    m_lblTitulo->setText(msj(Msj::TituloPrograma));
    m_lblTexto->setText(msj(Msj::TextoAcercaDe));
    m_lblVersion->setText(msj(Msj::VersionPrograma, QCoreApplication::applicationVersion()));
    m_lblDiputacion->setText(msj(Msj::NombreDiputacion));
    m_cmdAceptar->setText(msj(Msj::BotonAceptar));
}
