#pragma once

#include "core/MarcaCarga.h"
#include "core/Modos.h"
#include "dataservice/Registros.h"

using namespace Qt::StringLiterals;

/// One declarant in memory. Texts are held without padding and never cut; all storage is the data
/// service's, whose failures (ErrorDatos) pass through.
class cDecDatos
{
public:
    /// Findings of the import check on a RegDeclarante, as the service gives them.
    Filas ValidarDatosImportar(const Registro &datos) const;

    QString MODO() const { return m_modo; }
    /// "A" resets the record to a new declarant, also when it is one already; other values are
    /// kept.
    void MODO(const QString &modo);
    qint32 CSCO() const { return m_csco; }
    void CSCO(qint32 codigo) { m_csco = codigo; }
    QString DOMICILIO() const { return m.domicilio; }
    void DOMICILIO(const QString &texto) { m.domicilio = texto; }
    QString DNI() const { return m.dni; }
    void DNI(const QString &texto) { m.dni = texto; }
    QString NOMBRE() const { return m.nombre; }
    void NOMBRE(const QString &texto) { m.nombre = texto; }
    QString VIA() const { return m.via; } ///< street-type code
    void VIA(const QString &codigo) { m.via = codigo; }
    qint32 NUMERO() const { return m.numero; }
    void NUMERO(qint32 numero) { m.numero = numero; }
    QString LETRA() const { return m.letra; }
    void LETRA(const QString &texto) { m.letra = texto; }
    QString ESCALERA() const { return m.escalera; }
    void ESCALERA(const QString &texto) { m.escalera = texto; }
    QString PISO() const { return m.piso; }
    void PISO(const QString &texto) { m.piso = texto; }
    QString MANO() const { return m.mano; }
    void MANO(const QString &texto) { m.mano = texto; }
    QString CODPROV() const { return m.codprov; } ///< two digits
    void CODPROV(const QString &codigo) { m.codprov = codigo; }
    QString NOMPROV() const
    {
        return m.nomprov;
    } ///< always that of CODPROV, in the session's language
    void NOMPROV(const QString &texto) { m.nomprov = texto; }
    QString CODPOS() const { return m.codpos; }
    void CODPOS(const QString &codigo) { m.codpos = codigo; }
    QString CODMUN() const { return m.codmun; } ///< only used in the home province
    void CODMUN(const QString &codigo) { m.codmun = codigo; }
    QString NOMMUN() const { return m.nommun; }
    void NOMMUN(const QString &texto) { m.nommun = texto; }
    QString TELEFONO() const { return m.telefono; }
    void TELEFONO(const QString &texto) { m.telefono = texto; }
    double NUM430() const { return m.num430; } ///< 430 returns stored
    void NUM430(double numero) { m.num430 = numero; }
    double NUM480() const { return m.num480; } ///< 480 returns stored
    void NUM480(double numero) { m.num480 = numero; }

    /// Deletes the declarant CSCO; the caller has made sure that it has no returns.
    void BorrarDeclarante() const;
    /// Fills DNI to NUM480 and NOMPROV; CSCO and MODO stay as they are.
    void CargarDeclarante(qint32 codigo);
    /// Whether another copy of the program has changed the declarant since it was loaded.
    EstadoCarga CambioDesdeCarga() const;
    /// 0, or the number of the first rule that a RegValidacion breaks (MensajesDeclarante.h).
    qint16 ValidarDatosDeclarante(const Registro &datos) const;
    /// Key stored under a DNI, 0 when there is none.
    qint32 ObtenerCodigoDeclarante(const QString &dni) const;
    /// Saves a RegDeclarante: 0 saved, 1 a new declarant's DNI exists, 2 another one has that DNI.
    qint16 GuardarDeclarante(const Registro &datos) const;

    /// After a save: the record is what is stored, and a new one has its key.
    void TomarGuardado();

    /// The record as the two arrays that the service takes.
    Registro RegistroCompleto() const;
    Registro RegistroValidacion() const;

    bool enProvinciaPropia() const { return m.codprov.toInt() == ProvinciaPropia; }
    /// Takes a province of the table: sets code and name, empties the municipality's name, and its
    /// code too outside the home province.
    void CambiarProvincia(const QString &codigo, const QString &nombre);
    /// Asks for the province's name again, after a change of language.
    void LeerNombreProvincia();

private:
    struct Datos
    {
        QString dni, nombre, via = u"CL"_s, domicilio;
        qint32 numero = 0;
        QString letra, escalera, piso, mano;
        QString codprov = CodigoProvinciaPropia, nomprov = NombreProvinciaPropia;
        QString codpos, codmun, nommun, telefono;
        double num430 = 0, num480 = 0;
    };

    QString m_modo;
    qint32 m_csco = 0;
    Datos m;
    MarcaCarga m_cargado;
};
