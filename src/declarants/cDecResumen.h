#pragma once

#include "core/Modos.h"
#include "dataservice/Registros.h"

#include <QList>

#include <optional>
#include <utility>

/// What tells one return of a declarant from another.
struct CabeceraListada
{
    qint16 ejercicio = 0;
    quint8 periodicidad = 0; ///< 1 monthly, 2 annual
    quint8 periodo = 0; ///< month; 12 for an annual return
    QString modelo; ///< "430", "480" or empty
    quint8 tipologia = 0; ///< 1 model 430, 2 model 480, 0 none

    /// "430 ENERO 2026", in the session's language.
    QString nombre() const;
    bool operator==(const CabeceraListada &) const = default;
};

/// A month without its 430.
struct MesSinDeclarar
{
    int ejercicio = 0;
    int mes = 0;
};

/// "2025: MARZO, MAYO; 2026: ENERO": the first dozen of them, in the session's language.
QString textoMeses(const QList<MesSinDeclarar> &meses);

/// A month counted on over the years, from 0.
constexpr int cuentaDeMes(int ejercicio, int mes)
{
    return ejercicio * UltimoMes + mes - 1;
}
constexpr MesSinDeclarar mesDeCuenta(int cuenta)
{
    return {cuenta / UltimoMes, cuenta % UltimoMes + 1};
}

/// A stored return in a declarant's list.
struct DeclaracionListada : CabeceraListada
{
    qint32 csde = 0;
    double importe = 0; ///< cents: the total quota of a 430, the annual result of a 480
    bool danada = false; ///< not what was saved: no amount, and only what is sure of the header
};

/// Header of the return in hand and identity of its declarant, shared by the summary, the entry
/// screens and printing.
class cDecResumen
{
public:
    qint32 CSCO() const { return m_csco; } ///< key of the declarant
    void CSCO(qint32 codigo) { m_csco = codigo; }
    qint32 CSDE() const { return m_csde; } ///< key of the return selected or being created; 0 none
    void CSDE(qint32 codigo) { m_csde = codigo; }
    qint32 NUMDECLASEL() const { return m_numdeclasel; } ///< returns listed
    void NUMDECLASEL(qint32 numero) { m_numdeclasel = numero; }
    QString MODO() const { return m_modo; }
    /// "L" list: clears the proposal. Any other value ("N" new return) proposes the return after
    /// the latest one, or nothing when there is none or it lies outside the bounds.
    void MODO(const QString &modo);
    QString ENTRADA() const { return m_entrada; } ///< "A" from a list, "P" back from another screen
    void ENTRADA(const QString &entrada) { m_entrada = entrada; }
    QString DNI() const { return m_dni; }
    void DNI(const QString &texto) { m_dni = texto; }
    QString NOMBRE() const { return m_nombre; }
    void NOMBRE(const QString &texto) { m_nombre = texto; }
    qint16 EJERCICIO() const { return m.ejercicio; }
    void EJERCICIO(qint16 ejercicio) { m.ejercicio = ejercicio; }
    quint8 PERIODICIDAD() const { return m.periodicidad; } ///< 1 monthly, 2 annual
    void PERIODICIDAD(quint8 periodicidad) { m.periodicidad = periodicidad; }
    quint8 PERIODO() const { return m.periodo; } ///< month; 12 for an annual return
    void PERIODO(quint8 periodo) { m.periodo = periodo; }
    QString MODELO() const { return m.modelo; } ///< "430", "480" or empty
    void MODELO(const QString &modelo) { m.modelo = modelo; }
    quint8 TIPOLOGIA() const { return m.tipologia; } ///< 1 model 430, 2 model 480, 0 none
    void TIPOLOGIA(quint8 tipologia) { m.tipologia = tipologia; }

    /// Fills a RegUltima with the declarant's latest return; false when there is none.
    bool ObtenerUltimaDeclaracion(Registro &datos) const;
    /// 0, or the first broken rule of a RegCabecera (MensajesDeclarante.h).
    qint16 ValidarDatosComunes(const Registro &datos) const;

    /// The header and the session's bounds as RegCabecera.
    Registro Cabecera() const;
    /// Sets the model and what follows from it: "480" is annual, period 12; another model is
    /// monthly, and loses the period when it was annual before.
    void CambiarModelo(const QString &modelo);
    /// The session's declarant, for a screen that starts with it.
    void TomarDeclarante(qint32 csco, const QString &dni, const QString &nombre);

    /// A stored return becomes the one in hand.
    void TomarDeclaracion(const DeclaracionListada &declaracion);

    /// Name of the return in hand.
    QString NombreDeclaracion() const { return m.nombre(); }

    /// What a screen that opens the summary wants it to begin with: the stored return of that
    /// header selected, or a new one with it proposed. Taken once.
    void Pedir(const CabeceraListada &cabecera) { m_pedida = cabecera; }
    std::optional<CabeceraListada> TomarPedida() { return std::exchange(m_pedida, {}); }
    /// A new return with this header.
    void Proponer(const CabeceraListada &cabecera);

    /// The declarant's returns, oldest first; sets NUMDECLASEL.
    QList<DeclaracionListada> CargarDeclaraciones();
    /// The months before the return in hand, from the first one declared on, that the returns
    /// loaded last leave out.
    QList<MesSinDeclarar> MesesSinDeclarar() const;
    /// Deletes a stored return, figures and header.
    void BorrarDeclaracion(const DeclaracionListada &declaracion) const;

private:
    CabeceraListada proponer() const;
    Registro registroDe(const CabeceraListada &cabecera) const;

    qint32 m_csco = 0;
    qint32 m_csde = 0;
    qint32 m_numdeclasel = 0;
    QString m_modo;
    QString m_entrada;
    QString m_dni;
    QString m_nombre;
    CabeceraListada m;
    std::optional<CabeceraListada> m_pedida;
    QList<int> m_mensuales; ///< months of the 430 returns loaded last, in order
};
