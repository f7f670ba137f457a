#pragma once

#include "exchange/Exportacion.h"
#include "exchange/TablaDeclarantes.h"

#include <QHash>
#include <QString>

/// State of the export: the declarants that can be chosen and those that are.
class cExportar
{
public:
    static constexpr quint8 PorDni = 1;
    static constexpr quint8 PorNombre = 2;

    enum Tabla { Contri, ContriExp };

    qint32 CSCO() const { return m_csco; } ///< key under the cursor of the available list
    void CSCO(qint32 codigo) { m_csco = codigo; }
    quint8 ORDEN() const { return m_orden; } ///< of the available list
    void ORDEN(quint8 orden) { m_orden = orden; }
    QString lblTitulo() const;
    QString lblayuda() const;
    QString lblResultado1() const; ///< how many are available
    QString lblresultado2() const; ///< how many are chosen
    qint32 NUMCONTRISEL() const { return tabla(Contri).COUNT(); }
    qint32 CSCOEXP() const { return m_cscoexp; } ///< key under the cursor of the chosen list
    void CSCOEXP(qint32 codigo) { m_cscoexp = codigo; }
    qint32 NUMCONTRIEXP() const { return tabla(ContriExp).COUNT(); }
    QString FICHEROAEXPORTAR() const { return m_fichero; } ///< the file to write
    void FICHEROAEXPORTAR(const QString &ruta) { m_fichero = ruta; }

    void TablaContriCLEAR() { m_tablas[Contri].CLEAR(); }
    void TablaContriAÑADIR(const DeclaranteExportable &elemento)
    {
        m_tablas[Contri].ANADIR(elemento);
    }
    void TablaContriINSERTAR(int posicion, const DeclaranteExportable &elemento)
    {
        m_tablas[Contri].INSERTAR(posicion, elemento);
    }
    void TablaContriBORRAR(int posicion) { m_tablas[Contri].BORRAR(posicion); }
    int TablaContriCOUNT() const { return m_tablas[Contri].COUNT(); }
    bool TablaContriPERTENECE(qint32 csco) const { return m_tablas[Contri].PERTENECE(csco); }
    DeclaranteExportable TablaContriELEMENTO(int posicion) const
    {
        return m_tablas[Contri].ELEMENTO(posicion);
    }

    void TablaContriExpCLEAR() { m_tablas[ContriExp].CLEAR(); }
    void TablaContriExpAÑADIR(const DeclaranteExportable &elemento)
    {
        m_tablas[ContriExp].ANADIR(elemento);
    }
    void TablaContriExpINSERTAR(int posicion, const DeclaranteExportable &elemento)
    {
        m_tablas[ContriExp].INSERTAR(posicion, elemento);
    }
    void TablaContriExpBORRAR(int posicion) { m_tablas[ContriExp].BORRAR(posicion); }
    int TablaContriExpCOUNT() const { return m_tablas[ContriExp].COUNT(); }
    bool TablaContriExpPERTENECE(qint32 csco) const { return m_tablas[ContriExp].PERTENECE(csco); }
    DeclaranteExportable TablaContriExpELEMENTO(int posicion) const
    {
        return m_tablas[ContriExp].ELEMENTO(posicion);
    }

    /// Copies the element at a position of `origen` into the other table: at the end of the chosen
    /// ones, at its place in the order of the available ones.
    void COPIARELEMENTOENTRETABLAS(Tabla origen, int posicion);
    /// Moves the elements at ascending positions into the other table; the same as copying and
    /// deleting each, in one go.
    void MoverElementos(Tabla origen, const QList<int> &posiciones);

    const TablaDeclarantes &tabla(Tabla cual) const { return m_tablas[cual]; }

    /// Every stored declarant in the order ORDEN into the available table, less those chosen; of
    /// those chosen, the ones that are gone are dropped and the others renewed.
    void CargarDeclarantes();

    /// Writes the chosen ones to FICHEROAEXPORTAR.
    Exportado EscribirFichero(const std::function<bool(qint64)> &seguir) const;

private:
    int posicionDisponible(qint32 csco) const;

    qint32 m_csco = 0;
    qint32 m_cscoexp = 0;
    quint8 m_orden = PorDni;
    QString m_fichero;
    TablaDeclarantes m_tablas[2];
    QHash<qint32, int> m_lugar; ///< of each declarant in the order ORDEN
};
