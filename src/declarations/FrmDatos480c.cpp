#include "declarations/FrmDatos480c.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "declarations/PanelMensuales.h"
#include "declarations/cDatos480.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using namespace Casilla480;

/// The boxes of the page in reading order: number, name, grid row and column, line and column
/// texts.
struct LugarCasilla
{
    int numero;
    QStringView control;
    int fila, columna;
    Msj linea, titulo;
};

static constexpr LugarCasilla Lugares[] = {
    {C70_TOT, u"txt70tot", 1, 0, Msj::Totales, Msj::NoExento},
    {C71_TOT, u"txt71tot", 1, 2, Msj::Totales, Msj::Exento},
    {C73_BA1, u"txt73ba1", 3, 0, Msj::OperacionesSujetas, Msj::BaseImponible},
    {C74_TI1, u"txt74ti1", 3, 1, Msj::OperacionesSujetas, Msj::Tipo},
    {C75_CU1, u"txt75cu1", 3, 2, Msj::OperacionesSujetas, Msj::Cuota},
    {C76_BA2, u"txt76ba2", 4, 0, Msj::OperacionesSujetas, Msj::BaseImponible},
    {C77_TI2, u"txt77ti2", 4, 1, Msj::OperacionesSujetas, Msj::Tipo},
    {C78_CU2, u"txt78cu2", 4, 2, Msj::OperacionesSujetas, Msj::Cuota},
    {C79_BA3, u"txt79ba3", 5, 0, Msj::RectificacionEjercicios, Msj::BaseImponible},
    {C80_CU3, u"txt80cu3", 5, 2, Msj::RectificacionEjercicios, Msj::Cuota},
    {C81_RES, u"txt81res", 6, 2, Msj::ResultadoAnual, Msj::Cuota},
};

FrmDatos480c::FrmDatos480c(QWidget *padre)
    : Pantalla480(u"FrmDatos480c"_s, Msj::Titulo480c, Pantalla::Datos480b, Pantalla::Ninguna, padre)
    , m_lblDiferencia(new QLabel(this))
    , m_mensuales(new PanelMensuales(this))
{
    auto *rejilla = new QGridLayout;
    disponer(rejilla);
    m_lblDiferencia->setObjectName(u"lblDiferencia"_s);
    m_lblDiferencia->setWordWrap(true);
    m_cuerpo->addLayout(rejilla);
    m_cuerpo->addWidget(m_lblDiferencia);
    m_cuerpo->addWidget(m_mensuales, 1);
    alPulsar(m_cmdAceptar, [this] { aceptar(); });

    m_mensuales->cargar(registro());
    Anadir_captions();
    PresentaDatos();
}

void FrmDatos480c::disponer(QGridLayout *rejilla)
{
    rejilla->setHorizontalSpacing(10);
    rejilla->setVerticalSpacing(6);
    rejilla->setColumnStretch(0, 1);
    const auto etiqueta = [&](Msj texto, int fila, int columna, Qt::Alignment lado) {
        m_etiquetas.append({new QLabel(this), texto});
        rejilla->addWidget(m_etiquetas.last().first, fila, columna, lado);
    };
    etiqueta(Msj::NoExento, 0, 2, Qt::AlignRight);
    etiqueta(Msj::Exento, 0, 6, Qt::AlignRight);
    etiqueta(Msj::BaseImponible, 2, 2, Qt::AlignRight);
    etiqueta(Msj::Tipo, 2, 4, Qt::AlignRight);
    etiqueta(Msj::Cuota, 2, 6, Qt::AlignRight);
    etiqueta(Msj::Totales, 1, 0, Qt::AlignLeft);
    etiqueta(Msj::OperacionesSujetas, 3, 0, Qt::AlignLeft);
    etiqueta(Msj::RectificacionEjercicios, 5, 0, Qt::AlignLeft);
    etiqueta(Msj::ResultadoAnual, 6, 0, Qt::AlignLeft);
    for (const auto &[numero, control, fila, columna, linea, titulo] : Lugares) {
        auto *caja = usoCasilla(numero) == UsoCasilla::Entrada
            ? cajaNumero(control.toString(), numero)
            : cajaCalculada(control.toString());
        if (columna == 1)
            caja->setFixedWidth(caja->fontMetrics().horizontalAdvance(u"000,00 %"_s));
        auto *etiquetaNumero = new QLabel(QString::number(numero), this);
        etiquetaNumero->setEnabled(false);
        rejilla->addWidget(etiquetaNumero, fila, 1 + 2 * columna, Qt::AlignRight);
        rejilla->addWidget(caja, fila, 2 + 2 * columna);
        m_casillas.append({numero, caja});
    }
}

CajaImporte *FrmDatos480c::caja(int numero) const
{
    const auto hallada = std::ranges::find(m_casillas, numero, &Casilla::numero);
    return hallada->caja;
}

void FrmDatos480c::Anadir_captions()
{
    Pantalla480::Anadir_captions();
    for (const auto &[etiqueta, texto] : std::as_const(m_etiquetas))
        etiqueta->setText(msj(texto));
    for (const auto &lugar : Lugares)
        caja(lugar.numero)
            ->setAccessibleName(msj(lugar.linea) + u": "_s + msj(lugar.titulo) + u" ("_s
                                + QString::number(lugar.numero) + u')');
    m_mensuales->Anadir_captions();
}

void FrmDatos480c::PresentaDatos()
{
    const auto &r = registro();
    for (const auto &[numero, caja] : std::as_const(m_casillas)) {
        if (numero == C74_TI1 || numero == C77_TI2)
            caja->mostrar(textoTipo(numero == C74_TI1 ? r.C74_TI1() : r.C77_TI2()));
        else
            caja->mostrarImporte(r.casilla(numero));
    }
    const double diferencia = r.DiferenciaBases();
    m_lblDiferencia->setText(
        diferencia == 0 ? QString() : msj(Msj::DiferenciaCaja70, textoImporte(diferencia)));
}

void FrmDatos480c::showEvent(QShowEvent *evento)
{
    Pantalla480::showEvent(evento);
    caja(C73_BA1)->setFocus(Qt::OtherFocusReason);
}

bool FrmDatos480c::ValidarCampos()
{
    const qint16 codigo = registro().ValidarDatos480(registro().RegistroValidar());
    if (codigo == 2) {
        aviso(msj(Msj::ErrorTotal480));
        caja(C73_BA1)->setFocus(Qt::OtherFocusReason);
    }
    return codigo == 0;
}

qint32 FrmDatos480c::GuardarDeclaracion()
{
    return registro().GuardarDeclaracion(registro().RegistroGuardar());
}

void FrmDatos480c::aceptar()
{
    if (!ValidarCampos())
        return;
    if (!registro().MODIFICADO()) {
        cerrarComoCancelar();
        return;
    }
    if (const qint32 csde = GuardarDeclaracion(); csde > 0) {
        registro().MODIFICADO(false);
        entregar(registro().MODO(), csde);
    }
}
