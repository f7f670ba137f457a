#include "widgets/PantallaBase.h"

#include "core/Textos.h"
#include "widgets/Confirmable.h"
#include "widgets/Disposicion.h"
#include "widgets/Iconos.h"
#include "widgets/Mensajes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

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

void anunciarIdioma()
{
    for (auto *ventana : QApplication::topLevelWidgets()) {
        QEvent cambio(QEvent::LanguageChange);
        QApplication::sendEvent(ventana, &cambio);
    }
}

void PantallaBase::hacerModal()
{
    setWindowFlag(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    setWindowIcon(icono(Icono::Programa));
    envolver();
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
    salir(siguiente);
}

void PantallaBase::abandonarA(Pantalla siguiente)
{
    if (siguiente != Pantalla::Ninguna && m_abridor)
        m_abridor(siguiente);
    salir(siguiente);
}

void PantallaBase::salir(Pantalla siguiente)
{
    m_terminada = true;
    m_siguiente = m_abridor ? Pantalla::Ninguna : siguiente;
    descartarCajas();
    cerrar();
}

void PantallaBase::cerrar()
{
    auto *marco = qobject_cast<QMdiSubWindow *>(parentWidget());
    (marco ? static_cast<QWidget *>(marco) : this)->close();
}

void PantallaBase::centrar()
{
    const QRect libre = screen()->availableGeometry();
    const QWidget *sobre = parentWidget() ? parentWidget()->window() : nullptr;
    // a scale such as 150 % may round a window down to less than what it holds
    QSize tamano = sizeHint() + QSize(2, 2);
    // room for the bar by which the rest is reached
    if (tamano.height() > libre.height())
        tamano.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QRect lugar({}, tamano.boundedTo(libre.size()));
    lugar.moveCenter((sobre ? sobre->geometry() : libre).center());
    lugar.moveTopLeft({qMax(lugar.x(), libre.x()), qMax(lugar.y(), libre.y())});
    setGeometry(lugar);
}

static QList<Confirmable *> camposDe(const PantallaBase &pantalla)
{
    QList<Confirmable *> campos;
    for (auto *hijo : pantalla.findChildren<QWidget *>())
        if (auto *campo = dynamic_cast<Confirmable *>(hijo))
            campos.append(campo);
    return campos;
}

bool PantallaBase::confirmarCajas()
{
    return std::ranges::all_of(camposDe(*this), &Confirmable::confirmar);
}

void PantallaBase::descartarCajas()
{
    for (auto *campo : camposDe(*this))
        if (campo->pendiente())
            campo->descartar();
}

bool PantallaBase::perderia() const
{
    return modificada()
        || (edita() && std::ranges::any_of(camposDe(*this), &Confirmable::pendiente));
}

bool PantallaBase::aceptaCerrarse()
{
    return !perderia()
        || mensajes::pregunta(this, windowTitle(), msj(Msj::PreguntaCerrarSinGuardar));
}

void PantallaBase::abandonar()
{
    dejar();
    cerrar();
}

/// What is typed is dropped, and what the frame's closing leaves behind is left.
void PantallaBase::dejar()
{
    m_terminada = true;
    descartarCajas();
    procedimiento(this, [this] { m_siguiente = alCerrarMarco(); });
}

void PantallaBase::suspender(bool suspendida)
{
    if (suspendida && !m_velo) {
        m_velo = nuevaEtiqueta(u"lblSuspendida"_s, this);
        m_velo->setWordWrap(true);
        m_velo->setAlignment(Qt::AlignCenter);
        m_velo->setMargin(8);
        m_velo->setAutoFillBackground(true);
        m_velo->setBackgroundRole(QPalette::ToolTipBase);
        m_velo->setForegroundRole(QPalette::ToolTipText);
    }
    setEnabled(!suspendida);
    if (m_velo)
        m_velo->setVisible(suspendida);
    colocarVelo();
}

void PantallaBase::colocarVelo()
{
    if (!m_velo)
        return;
    m_velo->setText(msj(Msj::DeshabilitadoEnEdicion));
    m_velo->setGeometry(0, 0, width(), m_velo->heightForWidth(width()));
    m_velo->raise();
}

namespace {

/// Holds the contents of a screen; its keys are the screen's.
class Contenido : public QScrollArea
{
public:
    explicit Contenido(QWidget *pantalla)
        : QScrollArea(pantalla)
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent *evento) override { evento->ignore(); }
};

} // namespace

void PantallaBase::envolver()
{
    auto *conFoco = focusWidget();
    auto *contenido = new Contenido(this);
    // within the same window from the start, so that the order of Tab stays
    auto *cuerpo = new QWidget(contenido);
    cuerpo->setLayout(layout());
    contenido->setWidget(cuerpo);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(contenido);
    if (conFoco)
        conFoco->setFocus();
    connect(qApp, &QApplication::focusChanged, contenido, [contenido](QWidget *, QWidget *actual) {
        if (actual && contenido->widget()->isAncestorOf(actual))
            contenido->ensureWidgetVisible(actual, 16, 16);
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
            colocarVelo();
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

bool PantallaBase::entraSinFoco(const QShowEvent &evento) const
{
    // the frame around has given it to the first control, be that one hidden
    const auto *foco = focusWidget();
    return !evento.spontaneous() && !(foco && foco->isVisibleTo(this));
}

void PantallaBase::closeEvent(QCloseEvent *evento)
{
    if (!m_terminada) {
        if (!aceptaCerrarse()) {
            evento->ignore();
            return;
        }
        dejar();
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

void PantallaBase::resizeEvent(QResizeEvent *evento)
{
    QWidget::resizeEvent(evento);
    colocarVelo();
}
