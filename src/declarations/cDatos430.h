#pragma once

#include "core/MarcaCarga.h"
#include "core/Modos.h"
#include "dataservice/Registros.h"

/// Figures of one model 430 return. Amounts are whole cents, rates percent with two decimals; the
/// header is that of cDecResumen.
class cDatos430
{
public:
    QString MODO() const { return m_modo; }
    /// "A" resets the record for a new return of the header's exercise and period and fetches its
    /// rate; other values ("C" existing) are only stored.
    void MODO(const QString &modo);
    /// A new return whose rate is known already: what MODO("A") does after fetching it.
    void Nueva(float tipo);
    QString RECTIFICA() const { return m.rectifica; } ///< "X" or empty
    void RECTIFICA(const QString &marca) { m.rectifica = marca; }
    double BASELIQ() const { return m.baseliq; }
    void BASELIQ(double centimos);
    float TIPOLIQ() const { return m.tipoliq; }
    void TIPOLIQ(float tipo);
    double CUOTALIQ() const { return m.cuotaliq; } ///< computed
    void CUOTALIQ(double centimos);
    double BASEREC() const { return m.baserec; }
    void BASEREC(double centimos);
    double CUOTAREC() const { return m.cuotarec; } ///< entered, never derived from BASEREC
    void CUOTAREC(double centimos);
    double BASETOT() const { return m.basetot; } ///< computed
    void BASETOT(double centimos);
    float TIPOTOT() const { return m.tipotot; }
    void TIPOTOT(float tipo);
    double CUOTATOT() const { return m.cuotatot; } ///< computed
    void CUOTATOT(double centimos);
    qint32 CSDE() const { return m.csde; } ///< 0 while not saved
    void CSDE(qint32 codigo) { m.csde = codigo; }

    /// Fills the figures of a stored return as they are stored; CSDE is the caller's.
    void CargarDeclaracion(qint32 codigo);
    /// The service's code for a RegValidar430: 0 valid, 1 and 2 rectification without base or
    /// quota.
    qint16 ValidarDatos430(const Registro &datos) const;
    /// Whether another copy of the program has changed the return since it was loaded.
    EstadoCarga CambioDesdeCarga() const;
    /// Saves a header and figures record: the return's key, below 1 when it was refused.
    qint32 GuardarDeclaracion(const Registro &datos) const;
    /// After a save: the record is the stored return `csde`.
    void TomarGuardado(qint32 csde);
    /// Rate of the header's exercise and period, unrounded.
    float CalcularTipo() const;

    /// Quota of the liquidation, total base and total quota from the boxes entered.
    void CalcularValores();
    /// Whether every computed figure fits its box.
    bool cabe() const;
    /// Whether the figures are not those that were loaded, or a new return was begun with.
    bool Cambiada() const { return m != m_inicial; }
    /// Sets or clears the rectification mark; clearing empties its two boxes.
    void MarcarRectificacion(bool marcada);

    /// The record as the arrays that the service takes; the header comes from cDecResumen.
    Registro RegistroValidar() const;
    Registro RegistroGuardar() const;

private:
    struct Figuras
    {
        bool operator==(const Figuras &) const = default;

        QString rectifica;
        double baseliq = 0;
        float tipoliq = 0;
        double cuotaliq = 0;
        double baserec = 0;
        double cuotarec = 0;
        double basetot = 0;
        float tipotot = 0;
        double cuotatot = 0;
        qint32 csde = 0;
    };

    QString m_modo;
    Figuras m;
    MarcaCarga m_cargado;
    Figuras m_inicial; ///< when it was loaded or begun
};
