#include "maintenance/FrmIdioma.h"

#include "core/CEntrada.h"
#include "core/Modos.h"
#include "core/Unico.h"
#include "maintenance/BuscarActualizacion.h"
#include "maintenance/cActOnline.h"
#include "widgets/Disposicion.h"
#include "widgets/Iconos.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

/// A check box does not break its text over lines by itself.
static QString enLineas(const QString &texto, const QFontMetrics &medida)
{
    constexpr int ancho = 400;
    QStringList lineas(1);
    for (const QString &palabra : texto.split(u' ')) {
        const QString larga
            = lineas.last().isEmpty() ? palabra : QString(lineas.last() + u' ' + palabra);
        if (medida.horizontalAdvance(larga) <= ancho)
            lineas.last() = larga;
        else
            lineas.append(palabra);
    }
    return lineas.join(u'\n');
}

FrmIdioma::FrmIdioma(QWidget *padre)
    : PantallaBase(u"FrmIdioma"_s, padre)
    , m_cmdcastellano(
          boton("cmdcastellano", Msj::EleccionIdiomaCastellano, CodigoIdioma::Castellano))
    , m_cmdeuskera(boton("cmdeuskera", Msj::EleccionIdiomaEuskera, CodigoIdioma::Euskera))
    , m_chkActOnline(new QCheckBox(this))
    , m_lblAct(nuevaEtiqueta(u"lblAct"_s, this))
{
    m_lblAct->hide();
    m_chkActOnline->setObjectName(u"chkActOnline"_s);
    disponer();
    Anadir_captions();
    cargar();
    connect(m_chkActOnline, &QCheckBox::clicked, this, &FrmIdioma::guardarActOnline);
}

void FrmIdioma::Anadir_captions()
{
    setWindowTitle(msj(Msj::EleccionIdiomaTitulo));
    m_lblAct->setText(msj(Msj::EleccionIdiomaBuscando));
    m_chkActOnline->setText(enLineas(msj(Msj::EleccionIdiomaActualizaciones), fontMetrics()));
    m_chkActOnline->setAccessibleName(msj(Msj::EleccionIdiomaActualizaciones));
}

QPushButton *FrmIdioma::boton(const char *nombre, Msj texto, const QString &codigo)
{
    auto *nuevo = new QPushButton(msj(texto), this);
    nuevo->setObjectName(QString::fromLatin1(nombre));
    nuevo->setMinimumSize(160, 44);
    nuevo->setAutoDefault(false);
    alPulsar(nuevo, [this, codigo] { elegir(codigo); });
    return nuevo;
}

QLayout *FrmIdioma::cabecera()
{
    auto *emblema = new QLabel(this);
    emblema->setPixmap(icono(Icono::Programa).pixmap(QSize(64, 64), devicePixelRatioF()));
    auto *titulo = new QLabel(msj(Msj::EleccionIdiomaPrograma), this);
    agrandarLetra(titulo, 1.4);
    auto *fila = new QHBoxLayout;
    fila->setSpacing(18);
    fila->addWidget(emblema);
    fila->addWidget(titulo, 1);
    return fila;
}

void FrmIdioma::disponer()
{
    auto *marco = new QGroupBox(msj(Msj::EleccionIdiomaMarco), this);
    marco->setObjectName(u"Frame1"_s);
    auto *botones = new QHBoxLayout(marco);
    botones->setContentsMargins(18, 18, 18, 18);
    botones->setSpacing(18);
    botones->addWidget(m_cmdcastellano);
    botones->addWidget(m_cmdeuskera);

    auto *columna = new QVBoxLayout(this);
    columna->addLayout(cabecera());
    columna->setContentsMargins(MargenDialogo);
    columna->setSpacing(18);
    columna->addWidget(marco);
    columna->addWidget(m_chkActOnline);
    columna->addWidget(m_lblAct);
    columna->setSizeConstraint(QLayout::SetFixedSize);
}

void FrmIdioma::cargar()
{
    const bool castellano = unico::la<CEntrada>().IDI() == CodigoIdioma::Castellano;
    (castellano ? m_cmdcastellano : m_cmdeuskera)->setFocus();
    m_chkActOnline->setChecked(unico::la<cActOnline>().ActOnline() == 1);
}

void FrmIdioma::guardarActOnline(bool activa)
{
    auto &estado = unico::la<cActOnline>();
    const auto anterior = estado.ActOnline();
    estado.ActOnline(activa ? 1 : 0);
    if (!procedimiento(this, [&] { estado.GuardarActOnline(); })) {
        estado.ActOnline(anterior);
        m_chkActOnline->setChecked(!activa);
    }
}

void FrmIdioma::elegir(const QString &codigo)
{
    unico::la<CEntrada>().IDI(codigo);
    anunciarIdioma();
    if (unico::la<cActOnline>().ActOnline() == -1)
        buscar();
    cerrarA(Pantalla::Ninguna);
}

void FrmIdioma::buscar()
{
    m_chkActOnline->setEnabled(false);
    m_lblAct->show();
    buscarActualizacion(this);
    while (unico::la<cActOnline>().SitAct() == cActOnline::SinBuscar)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void FrmIdioma::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        focusNextChild();
    else
        PantallaBase::keyPressEvent(evento);
}
