#include "app/frmInicio.h"

#include "core/Textos.h"
#include "widgets/Dibujo.h"
#include "widgets/Iconos.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static constexpr QSize Tamano(540, 300);
static constexpr QRgb Arriba = 0xff1b4f80;
static constexpr QRgb Abajo = 0xff0f2c4d;
static constexpr QRgb Onda = 0x1affffff;

/// A line of text in a light colour, `aumento` times the normal size.
static QLabel *rotulo(QWidget *padre, const char *nombre, double aumento, const QColor &color)
{
    auto *etiqueta = new QLabel(padre);
    etiqueta->setObjectName(QString::fromLatin1(nombre));
    QFont letra = etiqueta->font();
    letra.setPointSizeF(letra.pointSizeF() * aumento);
    etiqueta->setFont(letra);
    QPalette paleta = etiqueta->palette();
    paleta.setColor(QPalette::WindowText, color);
    etiqueta->setPalette(paleta);
    etiqueta->setWordWrap(true);
    return etiqueta;
}

frmInicio::frmInicio()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , m_lblAct(rotulo(this, "lblAct", 1, QColor(0xff, 0xd9, 0x7a)))
{
    setObjectName(u"frmInicio"_s);
    setWindowTitle(msj(Msj::TituloPrograma));
    setWindowIcon(icono(Icono::Programa));
    setFixedSize(Tamano);
    move(screen()->availableGeometry().center() - rect().center());

    const QColor tenue(0xb9, 0xd2, 0xe8);
    auto *lblDiputacion = rotulo(this, "lblDiputacion", 1, tenue);
    auto *lblTitulo = rotulo(this, "lblTitulo", 2.4, Qt::white);
    auto *lblLema = rotulo(this, "lblLema", 1, tenue);
    auto *lblVersion = rotulo(this, "lblVersion", 1, Qt::white);
    lblDiputacion->setText(msj(Msj::NombreDiputacion));
    lblTitulo->setText(msj(Msj::TituloPrograma));
    lblLema->setText(msj(Msj::TextoAcercaDe));
    lblVersion->setText(msj(Msj::InicioVersion) + u' ' + QCoreApplication::applicationVersion());
    m_lblAct->setText(msj(Msj::InicioBuscandoActualizacion));
    m_lblAct->setAlignment(Qt::AlignRight);
    m_lblAct->hide();

    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(190, 30, 30, 26);
    columna->setSpacing(6);
    columna->addWidget(lblDiputacion);
    columna->addStretch(3);
    columna->addWidget(lblTitulo);
    columna->addWidget(lblLema);
    columna->addStretch(4);
    columna->addWidget(m_lblAct);
    columna->addWidget(lblVersion);
}

void frmInicio::mostrarDurante(std::chrono::milliseconds plazo, const std::function<void()> &tarea)
{
    const QDeadlineTimer hasta(plazo);
    show();
    if (tarea) {
        m_lblAct->show();
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        tarea();
        m_lblAct->hide();
    }
    QEventLoop espera;
    const auto resto
        = std::chrono::ceil<std::chrono::milliseconds>(hasta.remainingTimeAsDuration());
    QTimer::singleShot(resto, Qt::PreciseTimer, &espera, &QEventLoop::quit);
    espera.exec();
}

void frmInicio::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    QLinearGradient fondo(0, 0, 0, height());
    fondo.setColorAt(0, QColor::fromRgb(Arriba));
    fondo.setColorAt(1, QColor::fromRgb(Abajo));
    pintor.fillRect(rect(), fondo);
    QPainterPath onda;
    onda.addEllipse(QPointF(width() * 0.1, height() * 1.15), width() * 0.62, height() * 0.75);
    pintor.fillPath(onda, QColor::fromRgba(Onda));
    dibujarEmblema(pintor, QRectF(36, (height() - 124) / 2.0, 124, 124));
}
