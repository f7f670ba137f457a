#include "declarations/FrmDatos480ab.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "declarations/cDatos480.h"
#include "widgets/Disposicion.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static constexpr Msj Columnas[] = {Msj::NoExento, Msj::Exento};
static constexpr int SangriaGrupo = 18;

PaginaClases::PaginaClases(const QString &nombre, Msj titulo, bool primera, Pantalla anterior,
                           Pantalla siguiente, QWidget *padre)
    : Pantalla480(nombre, titulo, anterior, siguiente, padre)
{
    auto *rejilla = new QGridLayout;
    rejilla->setHorizontalSpacing(10);
    rejilla->setVerticalSpacing(5);
    rejilla->setColumnStretch(5, 1);
    for (int columna = 0; columna < 2; ++columna) {
        m_columnas[columna] = new QLabel(this);
        rejilla->addWidget(m_columnas[columna], 0, 2 + 2 * columna, Qt::AlignRight);
    }
    int fila = 1;
    for (int clase = 0; clase < Reg480::Clases; ++clase)
        if (enPrimeraPagina(clase) == primera)
            fila = crearLinea(rejilla, fila, clase);
    m_cuerpo->addLayout(rejilla);
    m_cuerpo->addStretch(1);
}

/// Adds a class, with its heading when it is the first one under it; the next free row.
int PaginaClases::crearLinea(QGridLayout *rejilla, int fila, int clase)
{
    const auto &datos = clase480(clase);
    if (datos.grupo && clase480(clase - 1).grupo != datos.grupo) {
        m_grupos.append({new QLabel(this), *datos.grupo});
        rejilla->addWidget(m_grupos.last().first, fila++, 0);
    }
    Linea linea{clase, new QLabel(this), {}};
    linea.etiqueta->setIndent(datos.grupo ? SangriaGrupo : 0);
    rejilla->addWidget(linea.etiqueta, fila, 0);
    for (int columna = 0; columna < 2; ++columna)
        linea.cajas[columna] = ponerCasilla(rejilla, datos.casilla(columna), fila, columna);
    m_lineas.append(linea);
    return fila + 1;
}

void PaginaClases::Anadir_captions()
{
    Pantalla480::Anadir_captions();
    for (int columna = 0; columna < 2; ++columna)
        m_columnas[columna]->setText(msj(Columnas[columna]));
    for (const auto &[etiqueta, texto] : std::as_const(m_grupos))
        etiqueta->setText(msj(texto));
    for (const auto &linea : std::as_const(m_lineas)) {
        const auto &datos = clase480(linea.clase);
        const QString grupo = datos.grupo ? msj(*datos.grupo) + u", "_s : QString();
        linea.etiqueta->setText(msj(datos.etiqueta));
        for (int columna = 0; columna < 2; ++columna)
            linea.cajas[columna]->setAccessibleName(grupo + msj(datos.etiqueta) + u": "_s
                                                    + msj(Columnas[columna]));
    }
}

void PaginaClases::PresentaDatos()
{
    for (const auto &linea : std::as_const(m_lineas))
        for (int columna = 0; columna < 2; ++columna)
            linea.cajas[columna]->mostrarImporte(
                registro().casilla(clase480(linea.clase).casilla(columna)));
}

void PaginaClases::showEvent(QShowEvent *evento)
{
    Pantalla480::showEvent(evento);
    m_lineas.first().cajas[0]->setFocus(Qt::OtherFocusReason);
}

FrmDatos480a::FrmDatos480a(QWidget *padre)
    : PaginaClases(u"FrmDatos480a"_s, Msj::Titulo480a, true, Pantalla::Ninguna, Pantalla::Datos480b,
                   padre)
    , m_lblPorRepartir(nuevaEtiqueta(u"lblPorRepartir"_s, this))
{
    m_cuerpo->addWidget(m_lblPorRepartir);
    auto &r = registro();
    if (r.ENTRADA() == Entrada::Abrir && r.MODO() == Modo::Consulta) {
        r.CargarDeclaracion(r.CSDE());
        r.MODIFICADO(false);
    }
    // coming back from the second page must not load again over what was typed
    r.ENTRADA(QString());
    if (const auto anno = r.CargarMensuales()) {
        const BandasMensuales bandas = r.Bandas(*anno);
        m_mensuales = bandas.base1 + bandas.base2;
    }
    Anadir_captions();
    PresentaDatos();
}

void FrmDatos480a::PresentaDatos()
{
    PaginaClases::PresentaDatos();
    const double total = registro().casilla(Casilla480::C70_TOT);
    m_lblPorRepartir->setText(m_mensuales ? msj(Msj::PorRepartir, textoImporte(*m_mensuales),
                                                textoImporte(*m_mensuales - total))
                                          : QString());
}

FrmDatos480b::FrmDatos480b(QWidget *padre)
    : PaginaClases(u"FrmDatos480b"_s, Msj::Titulo480b, false, Pantalla::Datos480a,
                   Pantalla::Datos480c, padre)
{
    Anadir_captions();
    PresentaDatos();
}
