#include "widgets/PantallaBase.h"

#include "widgets/Accesos.h"
#include "widgets/Confirmable.h"
#include "widgets/Iconos.h"
#include "widgets/Mensajes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

PantallaBase::PantallaBase(const QString &nombre, QWidget *padre)
    : QWidget(padre)
{
    setObjectName(nombre);
}

PantallaBase *pantallaDe(QWidget *control)
{
    while (control && !qobject_cast<PantallaBase *>(control))
        control = control->parentWidget();
    return static_cast<PantallaBase *>(control);
}

QString tituloDe(QWidget *control)
{
    const auto *pantalla = pantallaDe(control);
    return (pantalla ? pantalla : control->window())->windowTitle();
}

void PantallaBase::hacerModal()
{
    setWindowFlag(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    setWindowIcon(icono(Icono::Programa));
}

void PantallaBase::ejecutar()
{
    hacerModal();
    QEventLoop abierta;
    connect(this, &PantallaBase::cerrada, &abierta, &QEventLoop::quit);
    show();
    abierta.exec();
}

void PantallaBase::cerrarA(Pantalla siguiente)
{
    if (siguiente != Pantalla::Ninguna && m_abridor && !m_abridor(siguiente))
        return;
    m_terminada = true;
    m_siguiente = m_abridor ? Pantalla::Ninguna : siguiente;
    cerrar();
}

void PantallaBase::cerrar()
{
    auto *marco = qobject_cast<QMdiSubWindow *>(parentWidget());
    (marco ? static_cast<QWidget *>(marco) : this)->close();
}

void PantallaBase::centrar()
{
    adjustSize();
    const QWidget *sobre = parentWidget() ? parentWidget()->window() : nullptr;
    const QRect lugar = sobre ? sobre->geometry() : screen()->availableGeometry();
    move(lugar.center() - rect().center());
}

bool PantallaBase::confirmarCajas()
{
    const auto hijos = findChildren<QWidget *>();
    return std::ranges::all_of(hijos, [](QWidget *hijo) {
        auto *campo = dynamic_cast<Confirmable *>(hijo);
        return !campo || campo->confirmar();
    });
}

void PantallaBase::alPulsar(QAbstractButton *boton, const std::function<void()> &accion)
{
    connect(boton, &QAbstractButton::clicked, this, [this, accion] {
        procedimiento(this, [&] {
            if (confirmarCajas())
                accion();
        });
    });
}

void PantallaBase::alPulsarSinConfirmar(QAbstractButton *boton, const std::function<void()> &accion)
{
    boton->setProperty(NoConfirma, true);
    connect(boton, &QAbstractButton::clicked, this,
            [this, accion] { procedimiento(this, accion); });
}

void PantallaBase::aviso(const QString &texto)
{
    mensajes::aviso(this, windowTitle(), texto);
}

void PantallaBase::changeEvent(QEvent *evento)
{
    if (evento->type() == QEvent::LanguageChange) {
        procedimiento(this, [this] {
            Anadir_captions();
            repartirAccesos(this);
            alCambiarIdioma();
        });
    }
    QWidget::changeEvent(evento);
}

void PantallaBase::showEvent(QShowEvent *evento)
{
    repartirAccesos(this);
    if (isModal() && !evento->spontaneous())
        centrar();
    QWidget::showEvent(evento);
}

void PantallaBase::closeEvent(QCloseEvent *evento)
{
    if (!m_terminada) {
        m_terminada = true;
        procedimiento(this, [this] { m_siguiente = alCerrarMarco(); });
    }
    evento->accept();
    Q_EMIT cerrada();
    if (m_siguiente != Pantalla::Ninguna)
        Q_EMIT mostrar(m_siguiente);
}

void PantallaBase::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape) {
        cerrar();
        return;
    }
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(evento);
        return;
    }
    // a button with the focus is pressed, a list takes the key for its row, any other field hands
    // on to the next
    if (qobject_cast<QAbstractItemView *>(focusWidget()))
        return;
    if (auto *boton = qobject_cast<QPushButton *>(focusWidget()))
        boton->click();
    else
        focusNextChild();
}
