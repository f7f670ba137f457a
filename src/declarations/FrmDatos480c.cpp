#include "declarations/FrmDatos480c.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "dataservice/Codigos.h"
#include "declarants/cDecResumen.h"
#include "declarations/PanelMensuales.h"
#include "declarations/cDatos480.h"
#include "widgets/Disposicion.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using enum Casilla480;

/// The amount boxes of the page in reading order: grid row and column, line and column texts.
struct LugarCasilla
{
    Casilla480 casilla;
    int fila, columna;
    Msj linea, titulo;
};

static constexpr LugarCasilla Lugares[] = {
    {C70_TOT, 1, 0, Msj::Totales, Msj::NoExento},
    {C71_TOT, 1, 2, Msj::Totales, Msj::Exento},
    {C73_BA1, 3, 0, Msj::OperacionesSujetas, Msj::BaseImponible},
    {C75_CU1, 3, 2, Msj::OperacionesSujetas, Msj::Cuota},
    {C76_BA2, 4, 0, Msj::OperacionesSujetas, Msj::BaseImponible},
    {C78_CU2, 4, 2, Msj::OperacionesSujetas, Msj::Cuota},
    {C79_BA3, 5, 0, Msj::RectificacionEjercicios, Msj::BaseImponible},
    {C80_CU3, 5, 2, Msj::RectificacionEjercicios, Msj::Cuota},
    {C81_RES, 6, 2, Msj::ResultadoAnual, Msj::Cuota},
};

/// The rates of both bands.
struct LugarTipo
{
    QStringView numero, control;
    int fila;
    float (cDatos480::*valor)() const;
};

static constexpr LugarTipo LugaresTipo[] = {
    {u"74", u"txt74ti1", 3, &cDatos480::C74_TI1},
    {u"77", u"txt77ti2", 4, &cDatos480::C77_TI2},
};

/// Dark on amber, bold, under any theme.
static void pintarAdvertencia(QLabel *etiqueta)
{
    QPalette colores = etiqueta->palette();
    colores.setColor(QPalette::Window, QColor(255, 236, 179));
    colores.setColor(QPalette::WindowText, QColor(92, 60, 0));
    etiqueta->setPalette(colores);
    etiqueta->setAutoFillBackground(true);
    etiqueta->setMargin(6);
    QFont negrita = etiqueta->font();
    negrita.setBold(true);
    etiqueta->setFont(negrita);
}

FrmDatos480c::FrmDatos480c(QWidget *padre)
    : Pantalla480(u"FrmDatos480c"_s, Msj::Titulo480c, Pantalla::Datos480b, Pantalla::Ninguna, padre)
    , m_lblDiferencia(nuevaEtiqueta(u"lblDiferencia"_s, this))
    , m_lblUnTipo(nuevaEtiqueta(u"lblUnTipo"_s, this))
    , m_mensuales(new PanelMensuales(this))
{
    auto *rejilla = new QGridLayout;
    disponer(rejilla);
    pintarAdvertencia(m_lblDiferencia);
    m_cuerpo->addLayout(rejilla);
    m_cuerpo->addWidget(m_lblUnTipo);
    m_cuerpo->addWidget(m_lblDiferencia);
    m_cuerpo->addWidget(m_mensuales, 1);
    // as the page is read: the boxes, the months, and back to the buttons
    enlazarTab({caja(C80_CU3), m_mensuales->boton(), m_mensuales->lista()});
    alPulsar(m_cmdAceptar, [this] { aceptar(); });
    alPulsar(m_mensuales->boton(), [this] { tomarMensuales(); });

    m_mensuales->cargar(registro());
    Anadir_captions();
    PresentaDatos();
}

void FrmDatos480c::disponer(QGridLayout *rejilla)
{
    rejilla->setHorizontalSpacing(10);
    rejilla->setVerticalSpacing(6);
    rejilla->setColumnStretch(7, 1);
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
    for (const auto &lugar : Lugares)
        m_casillas.append(
            {lugar.casilla, ponerCasilla(rejilla, lugar.casilla, lugar.fila, lugar.columna)});
    for (const auto &lugar : LugaresTipo) {
        m_tipos.append(cajaTipo(lugar.control.toString()));
        ponerNumerada(rejilla, lugar.numero.toString(), m_tipos.last(), lugar.fila, 1);
    }
}

CajaImporte *FrmDatos480c::caja(Casilla480 cual) const
{
    const auto hallada = std::ranges::find(m_casillas, cual, &Casilla::cual);
    return hallada->caja;
}

void FrmDatos480c::Anadir_captions()
{
    Pantalla480::Anadir_captions();
    for (const auto &[etiqueta, texto] : std::as_const(m_etiquetas))
        etiqueta->setText(msj(texto));
    const auto nombrar = [](QWidget *caja, Msj linea, Msj columna, const QString &numero) {
        caja->setAccessibleName(msj(linea) + u": "_s + msj(columna) + u" ("_s + numero + u')');
    };
    for (const auto &lugar : Lugares)
        nombrar(caja(lugar.casilla), lugar.linea, lugar.titulo, numeroCasilla(lugar.casilla));
    for (qsizetype i = 0; const auto &lugar : LugaresTipo)
        nombrar(m_tipos[i++], Msj::OperacionesSujetas, Msj::Tipo, lugar.numero.toString());
    m_mensuales->Anadir_captions();
}

void FrmDatos480c::PresentaDatos()
{
    const auto &r = registro();
    for (const auto &[cual, caja] : std::as_const(m_casillas))
        caja->mostrarImporte(r.casilla(cual));
    for (qsizetype i = 0; const auto &lugar : LugaresTipo)
        m_tipos[i++]->mostrar(textoTipo((r.*lugar.valor)()));
    presentarAvisos();
}

/// A year with one rate has no second band: its box takes nothing, but what is stored in it can
/// still be taken out.
void FrmDatos480c::presentarAvisos()
{
    const auto &r = registro();
    const double diferencia = r.DiferenciaBases();
    m_lblDiferencia->setText(
        diferencia == 0 ? QString() : msj(Msj::DiferenciaCaja70, textoImporte(diferencia)));
    m_lblDiferencia->setVisible(diferencia != 0);
    const bool unTipo = r.C77_TI2() == 0 && r.casilla(C76_BA2) == 0;
    const QString motivo = unTipo
        ? msj(Msj::UnSoloTipo, QString::number(unico::la<cDecResumen>().EJERCICIO()))
        : QString();
    if (caja(C76_BA2)->isReadOnly() != unTipo)
        caja(C76_BA2)->bloquear(unTipo);
    caja(C76_BA2)->setToolTip(motivo);
    caja(C76_BA2)->setAccessibleDescription(motivo);
    m_lblUnTipo->setText(motivo);
    m_lblUnTipo->setVisible(unTipo);
}

void FrmDatos480c::showEvent(QShowEvent *evento)
{
    Pantalla480::showEvent(evento);
    caja(C73_BA1)->setFocus(Qt::OtherFocusReason);
}

/// The bases of the months in their bands; everything can still be edited.
void FrmDatos480c::tomarMensuales()
{
    const BandasMensuales bandas = registro().Bandas(*m_mensuales->anno());
    // a sum of months may be more than what can be typed
    const bool cabe = cabeEnCasilla(bandas.base1) && cabeEnCasilla(bandas.base2)
        && cambiarSiCabe(registro(), [&](cDatos480 &r) {
                          r.casilla(C73_BA1, bandas.base1);
                          r.casilla(C76_BA2, bandas.base2);
                          r.MODIFICADO(true);
                      });
    if (!cabe)
        aviso(msj(Msj::ImporteTotalExcedido, msj(Msj::BaseImponible)));
    PresentaDatos();
    recuperarFoco(caja(C73_BA1));
}

bool FrmDatos480c::ValidarCampos()
{
    const Regla480 regla{registro().ValidarDatos480(registro().RegistroValidar())};
    if (regla == Regla480::TotalNoExento) {
        aviso(msj(Msj::ErrorTotal480));
        recuperarFoco(caja(C73_BA1));
    }
    return regla == Regla480::Ninguna;
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
    guardarYVolver(registro(), registro().casilla(C81_RES),
                   [this] { return GuardarDeclaracion(); });
}
