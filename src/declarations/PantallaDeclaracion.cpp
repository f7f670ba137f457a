#include "declarations/PantallaDeclaracion.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/MensajesDeclarante.h"
#include "declarants/cDecResumen.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// A label that takes the room that is left, and ends in an ellipsis where that is too little; the
/// whole text is its tip then.
class EtiquetaBreve : public QLabel
{
public:
    EtiquetaBreve(const QString &nombre, QWidget *padre)
        : QLabel(padre)
    {
        setObjectName(nombre);
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }

    /// Room for most names, whatever this one is.
    QSize sizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 34, QLabel::sizeHint().height()};
    }
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter pintor(this);
        const QString breve = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        style()->drawItemText(&pintor, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                              isEnabled(), breve, foregroundRole());
        setToolTip(breve == text() ? QString() : text());
    }
};

/// Head of every entry screen: whose return it is, and its exercise and period. Nothing in it can
/// be changed.
class PantallaDeclaracion::Cabecera : public QWidget
{
public:
    explicit Cabecera(QWidget *padre);

    /// Texts and values from the header, in the session's language.
    void mostrar();

private:
    QLabel *m_lbldni;
    QLabel *m_lblnombre;
    QLabel *m_lblejer;
    CajaTexto *m_txtejer;
    QLabel *m_lblper;
    CajaTexto *m_txtper;
    QLabel *m_lblperiodo;
};

static CajaTexto *cajaCabecera(const QString &nombre, int cifras, QWidget *padre)
{
    auto *texto = new CajaTexto(nombre, cifras, CajaTexto::Cifras, padre);
    texto->bloquear(true);
    texto->setAlignment(Qt::AlignHCenter);
    texto->setFixedWidth(texto->fontMetrics().horizontalAdvance(u'0') * (cifras + 4));
    return texto;
}

PantallaDeclaracion::Cabecera::Cabecera(QWidget *padre)
    : QWidget(padre)
    , m_lbldni(nuevaEtiqueta(u"lbldni"_s, this))
    , m_lblnombre(new EtiquetaBreve(u"lblnombre"_s, this))
    , m_lblejer(nuevaEtiqueta(u"lblejer"_s, this))
    , m_txtejer(cajaCabecera(u"txtejer"_s, 4, this))
    , m_lblper(nuevaEtiqueta(u"lblper"_s, this))
    , m_txtper(cajaCabecera(u"txtper"_s, 2, this))
    , m_lblperiodo(nuevaEtiqueta(u"lblperiodo"_s, this))
{
    QFont negrita = font();
    negrita.setBold(true);
    m_lbldni->setFont(negrita);
    m_lblnombre->setFont(negrita);
    auto *fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(8);
    fila->addWidget(m_lbldni);
    fila->addWidget(m_lblnombre, 1);
    fila->addSpacing(16);
    fila->addWidget(m_lblejer);
    fila->addWidget(m_txtejer);
    fila->addSpacing(8);
    fila->addWidget(m_lblper);
    fila->addWidget(m_txtper);
    fila->addWidget(m_lblperiodo);
}

void PantallaDeclaracion::Cabecera::mostrar()
{
    const auto &cabecera = unico::la<cDecResumen>();
    m_lbldni->setText(cabecera.DNI());
    m_lblnombre->setText(cabecera.NOMBRE());
    m_lblejer->setText(msj(Msj::Ejercicio));
    m_lblper->setText(msj(Msj::Periodo));
    m_txtejer->mostrar(QString::number(cabecera.EJERCICIO()));
    m_txtejer->setAccessibleName(msj(Msj::Ejercicio));
    m_txtper->mostrar(QString::number(cabecera.PERIODO()).rightJustified(2, u'0'));
    m_txtper->setAccessibleName(msj(Msj::Periodo));
    m_lblperiodo->setText(textoPeriodo(cabecera.PERIODICIDAD(), cabecera.PERIODO()));
}

PantallaDeclaracion::PantallaDeclaracion(const QString &nombre, QWidget *padre)
    : PantallaBase(nombre, padre)
    , m_cuerpo(new QVBoxLayout)
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cabecera(new Cabecera(this))
{
    m_cuerpo->setSpacing(10);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(10);
    todo->addWidget(m_cabecera);
    todo->addWidget(nuevaRaya(this));
    todo->addLayout(m_cuerpo, 1);
    todo->addWidget(nuevaRaya(this));
    todo->addWidget(m_botones);
}

void PantallaDeclaracion::Anadir_captions()
{
    m_cabecera->mostrar();
}

void PantallaDeclaracion::alCambiarIdioma()
{
    // what is still only typed is not lost
    if (confirmarCajas())
        PresentaDatos();
}

CajaImporte *PantallaDeclaracion::cajaCalculada(const QString &nombre)
{
    auto *caja = new CajaImporte(nombre, this);
    caja->bloquear(true);
    return caja;
}

CajaImporte *PantallaDeclaracion::cajaTipo(const QString &nombre)
{
    auto *caja = cajaCalculada(nombre);
    caja->setFixedWidth(caja->fontMetrics().horizontalAdvance(u"000,00 %"_s));
    return caja;
}

/// Runs a change of the record and shows it; an exception is told and counts as refused.
bool PantallaDeclaracion::tomar(const std::function<bool()> &cambio)
{
    bool tomado = false;
    procedimiento(this, [&] {
        tomado = cambio();
        if (tomado)
            PresentaDatos();
        else
            aviso(msj(Msj::ImporteTotalExcedido, msj(Msj::Total)));
    });
    return tomado;
}

void PantallaDeclaracion::cerrarComoCancelar()
{
    abandonarA(alCerrarMarco());
}

QString PantallaDeclaracion::nombreDeclaracion()
{
    return unico::la<cDecResumen>().NombreDeclaracion();
}

/// Why a save was refused: another copy of the program has stored or deleted it meanwhile.
static QString motivoRechazo(bool nueva, const QString &nombre)
{
    const auto &cabecera = unico::la<cDecResumen>();
    const qint16 codigo = nueva ? cabecera.ValidarDatosComunes(cabecera.Cabecera()) : qint16(0);
    return codigo == 0 ? msj(Msj::EliminadoEnOtraCopia, nombre) : textoCabecera(codigo);
}

void PantallaDeclaracion::entregar(bool nueva, qint32 csde, double importe)
{
    if (csde < 1) {
        aviso(motivoRechazo(nueva, nombreDeclaracion()));
        return;
    }
    auto &cabecera = unico::la<cDecResumen>();
    if (nueva)
        cabecera.CSDE(csde);
    cabecera.ENTRADA(Entrada::Vuelta);
    decir(msj(Msj::DeclaracionGuardada, nombreDeclaracion() + u": "_s + textoImporte(importe)));
    Q_EMIT datosCambiados(cabecera.CSCO());
    cerrarA(Pantalla::Resumen);
}

void PantallaDeclaracion::keyPressEvent(QKeyEvent *evento)
{
    const auto enBoton = [this] { return qobject_cast<QPushButton *>(focusWidget()) != nullptr; };
    const bool desdeBoton = enBoton();
    PantallaBase::keyPressEvent(evento);
    const bool intro = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (intro && !desdeBoton && enBoton())
        m_adelante->setFocus(Qt::TabFocusReason);
}

Pantalla PantallaDeclaracion::alCerrarMarco()
{
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.ENTRADA(Entrada::Vuelta);
    cabecera.CSDE(csdeRegistro());
    return Pantalla::Resumen;
}
