#include "widgets/PantallaProceso.h"

#include "core/Textos.h"
#include "widgets/Disposicion.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

PantallaProceso::PantallaProceso(const QString &nombre, QWidget *padre)
    : PantallaBase(nombre, padre)
    , m_contenido(new QWidget(this))
    , m_fraProgreso(new QWidget(this))
    , m_prgProgreso(new QProgressBar(m_fraProgreso))
    , m_lblProgreso(nuevaEtiqueta(u"lblProgreso"_s, m_fraProgreso))
    , m_cmdDetener(new QPushButton(m_fraProgreso))
{
    m_fraProgreso->setObjectName(u"fraProgreso"_s);
    m_prgProgreso->setObjectName(u"prgProgreso"_s);
    m_cmdDetener->setObjectName(u"cmdDetener"_s);
    m_prgProgreso->setTextVisible(false);
    auto *fila = new QHBoxLayout(m_fraProgreso);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(m_prgProgreso, 1);
    fila->addWidget(m_lblProgreso);
    fila->addWidget(m_cmdDetener);
    m_fraProgreso->hide();

    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->addWidget(m_contenido, 1);
    todo->addWidget(m_fraProgreso);
    m_contenido->setObjectName(u"fraContenido"_s);
    connect(m_cmdDetener, &QPushButton::clicked, this, [this] { m_detener = true; });
}

void PantallaProceso::Anadir_captions()
{
    m_prgProgreso->setAccessibleName(windowTitle());
    m_cmdDetener->setText(msj(Msj::BotonDetener));
    m_cmdDetener->setToolTip(msj(Msj::PistaDetener));
}

void PantallaProceso::ocupar(bool trabajando)
{
    m_trabajando = trabajando;
    m_contenido->setEnabled(!trabajando);
    Q_EMIT cambiaEdicion();
}

bool PantallaProceso::trabajar(qint64 total, const std::function<void()> &trabajo, qint64 pocas)
{
    if (m_trabajando)
        return false;
    QWidget *foco = focusWidget();
    m_detener = false;
    m_total = total;
    m_prgProgreso->setRange(0, 1000);
    m_prgProgreso->setValue(0);
    m_lblProgreso->clear();
    ocupar(true);
    m_fraProgreso->setVisible(total > pocas);
    m_cmdDetener->setFocus(Qt::OtherFocusReason);
    const bool bien = procedimiento(this, trabajo);
    m_fraProgreso->hide();
    ocupar(false);
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    return bien;
}

bool PantallaProceso::paso(qint64 linea, Msj texto)
{
    if (m_total > 0)
        m_prgProgreso->setValue(static_cast<int>(1000 * linea / m_total));
    m_lblProgreso->setText(msj(texto, QString::number(linea), QString::number(m_total)));
    QApplication::processEvents();
    return !m_detener;
}

void PantallaProceso::closeEvent(QCloseEvent *evento)
{
    if (!m_trabajando) {
        PantallaBase::closeEvent(evento);
        return;
    }
    m_detener = true;
    evento->ignore();
}

void PantallaProceso::recibirFicheros(std::function<void(const QString &)> tomar)
{
    m_recibir = std::move(tomar);
    setAcceptDrops(true);
}

/// The only local file among what is dragged; empty when there is no such one.
static QString ficheroArrastrado(const QMimeData *datos)
{
    const auto direcciones = datos->urls();
    return direcciones.size() == 1 ? direcciones.first().toLocalFile() : QString();
}

void PantallaProceso::dragEnterEvent(QDragEnterEvent *evento)
{
    if (!m_trabajando && !ficheroArrastrado(evento->mimeData()).isEmpty())
        evento->acceptProposedAction();
}

void PantallaProceso::dropEvent(QDropEvent *evento)
{
    evento->acceptProposedAction();
    // the program that it comes from waits until this returns
    QMetaObject::invokeMethod(
        this,
        [this, ruta = ficheroArrastrado(evento->mimeData())] {
            procedimiento(this, [&] { m_recibir(ruta); });
        },
        Qt::QueuedConnection);
}
