#include "app/frmAbout.h"

#include "app/Version.h"
#include "core/Textos.h"
#include "widgets/Iconos.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

static QLabel *etiqueta(QWidget *padre, const char *nombre)
{
    auto *nueva = new QLabel(padre);
    nueva->setObjectName(QString::fromLatin1(nombre));
    nueva->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return nueva;
}

frmAbout::frmAbout(QWidget *padre)
    : QDialog(padre)
    , m_lblTitulo(etiqueta(this, "lblTitulo"))
    , m_lblTexto(etiqueta(this, "lblTexto"))
    , m_lblVersion(etiqueta(this, "lblVersion"))
    , m_lblDiputacion(etiqueta(this, "lblDiputacion"))
    , m_cmdAceptar(new QPushButton(this))
{
    setObjectName(u"frmAbout"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    m_cmdAceptar->setObjectName(u"cmdAceptar"_s);
    m_cmdAceptar->setDefault(true);
    connect(m_cmdAceptar, &QPushButton::clicked, this, &QDialog::accept);

    QFont grande = font();
    grande.setPointSizeF(grande.pointSizeF() * 1.7);
    m_lblTitulo->setFont(grande);
    auto *emblema = new QLabel(this);
    emblema->setPixmap(icono(Icono::Programa).pixmap(QSize(80, 80), devicePixelRatioF()));

    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(28, 26, 28, 22);
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
    m_lblVersion->setText(msj(Msj::VersionPrograma, versionPrograma()));
    m_lblDiputacion->setText(msj(Msj::NombreDiputacion));
    m_cmdAceptar->setText(msj(Msj::BotonAceptar));
}

void frmAbout::changeEvent(QEvent *evento)
{
    if (evento->type() == QEvent::LanguageChange)
        Anadir_captions();
    QDialog::changeEvent(evento);
}
