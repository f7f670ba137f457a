#pragma once

#include "core/MarcaCarga.h"
#include "core/Modos.h"
#include "declarations/Clases480.h"

/// The monthly 430 returns of a 480's exercise.
struct Mensuales430
{
    struct Mes
    {
        double base = 0; ///< total base, cents
        double cuota = 0; ///< total quota, cents
        double baseLiquidada = 0; ///< without what was rectified
        float tipo = 0; ///< of that base
        double baseRectificada = 0;
        double cuotaRectificada = 0;
    };

    std::array<std::optional<Mes>, 12> meses; ///< of two returns of one month, the last one loaded
    double base = 0; ///< running totals: every return counts
    double cuota = 0;
};

/// What the months declared, by the bands of their year; cents.
struct BandasMensuales
{
    double base1 = 0; ///< at the rate of box 74
    double base2 = 0; ///< at the rate of box 77
    double baseRectificada = 0; ///< in none of them
    double cuotaRectificada = 0;
    QList<int> deOtroTipo; ///< months at neither rate, in none of them
};

/// Figures of one model 480 return. Amounts are whole cents, rates percent with two decimals. The
/// header is that of cDecResumen.
class cDatos480
{
public:
    QString MODO() const { return m_modo; }
    /// "A" resets the record for a new return of the header's exercise and fetches the year's
    /// rates.
    void MODO(const QString &modo);
    /// A new return whose rates are known already: what MODO("A") does after fetching them.
    void Nueva(const Registro &tipos);
    /// "A" until the first page has loaded the return.
    QString ENTRADA() const { return m_entrada; }
    void ENTRADA(const QString &entrada) { m_entrada = entrada; }
    qint32 CSDE() const { return m_csde; } ///< 0 while not saved
    void CSDE(qint32 codigo) { m_csde = codigo; }
    bool MODIFICADO() const { return m_modificado; } ///< differs from what is stored
    void MODIFICADO(bool modificado) { m_modificado = modificado; }

    /// Amount of a box, in cents; the writer rounds to whole cents.
    double casilla(Casilla480 cual) const { return m.casillas.at(static_cast<size_t>(cual)); }
    void casilla(Casilla480 cual, double centimos);
    float C74_TI1() const { return m.tipo1; }
    void C74_TI1(float tipo);
    float C77_TI2() const { return m.tipo2; } ///< 0 when the year has one rate
    void C77_TI2(float tipo);

    /// Fills the boxes as they are stored; box 71 is the sum of its column. CSDE is the caller's.
    void CargarDeclaracion(qint32 codigo);
    /// The service's code for a RegValidar480: 0 valid, 2 box 70 is not 73 + 76.
    qint16 ValidarDatos480(const Registro &datos) const;
    /// Whether another copy of the program has changed the return since it was loaded.
    EstadoCarga CambioDesdeCarga() const;
    /// Saves a header and figures record: the return's key, below 1 when it was refused.
    qint32 GuardarDeclaracion(const Registro &datos) const;
    /// After a save: the record is the stored return `csde`.
    void TomarGuardado(qint32 csde);
    /// Totals, quotas and result from the boxes entered.
    void CalcularValores();
    /// Unrounded sum of the exempt bases.
    double CalcularC71() const;
    /// The rates of the header's exercise: one, or two in time order.
    void CalcularTipoAnual(Registro &tipos) const;
    /// Fila430 rows of the exercise's monthly returns; false when there is none.
    bool NumDecl430(Filas &lista) const;
    /// Those returns loaded; nothing when there is none.
    std::optional<Mensuales430> CargarMensuales() const;

    BandasMensuales Bandas(const Mensuales430 &anno) const;

    /// Box 70 less 73 and 76: 0 when the bands add up.
    double DiferenciaBases() const;
    /// Whether every computed figure fits its box.
    bool cabe() const;
    /// Whether the figures are not those that were loaded, or a new return was begun with.
    bool Cambiada() const { return m != m_inicial; }

    Registro RegistroValidar() const;
    Registro RegistroGuardar() const;

private:
    struct Figuras
    {
        bool operator==(const Figuras &) const = default;

        std::array<double, UltimaCasilla480 + 1> casillas{};
        float tipo1 = 0;
        float tipo2 = 0;
    };

    double sumaColumna(int columna) const;
    double &en(Casilla480 cual) { return m.casillas.at(static_cast<size_t>(cual)); }

    QString m_modo;
    QString m_entrada;
    qint32 m_csde = 0;
    bool m_modificado = false;
    Figuras m;
    MarcaCarga m_cargado;
    Figuras m_inicial; ///< when it was loaded or begun
};
