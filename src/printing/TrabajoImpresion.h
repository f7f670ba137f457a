#pragma once

#include "dataservice/SvrKtComunLib.h"
#include "printing/ValoresImpreso.h"

#include <QStringList>

#include <functional>
#include <memory>

class cImOf;
class QPagedPaintDevice;
class QPainter;

/// One print job: a return, drawn once per copy. Making it loads the declarant and the return into
/// their records and takes what the forms show; failures of the data service (ErrorDatos) pass
/// through. Whoever needs a window guards the calls.
class TrabajoImpresion
{
public:
    /// Every copy that `peticion` asks for; none for a model that cannot be printed.
    explicit TrabajoImpresion(const cImOf &peticion);

    /// Copy codes (cImOf.h) in printing order.
    const QStringList &copias() const { return m_copias; }
    /// Title of a document, in the session's language.
    QString titulo() const;
    /// Proposed file name of a PDF with these copies.
    QString nombreFichero(const QStringList &copias) const;

    /// Draws one copy on the painter's page; the painter's state is restored.
    void dibujar(QPainter &pintor, const QString &copia);
    /// Prints every copy, each as a document of its own; `antes` is called before each. False when
    /// the device takes no more.
    bool imprimir(QPagedPaintDevice &dispositivo, const std::function<void()> &antes = {});
    /// Draws the copies as the pages of one document.
    bool paginas(QPagedPaintDevice &dispositivo, const QStringList &copias);
    /// The same at the end of a document that `pintor` has begun; `vacio` while its first page is.
    bool anadirPaginas(QPainter &pintor, QPagedPaintDevice &dispositivo, const QStringList &copias,
                       bool &vacio);
    /// One PDF with these copies, in memory.
    QByteArray pdf(const QStringList &copias);

private:
    /// Held for the whole job.
    std::unique_ptr<SvrKtComunLib::cMiscelaneos> m_comunes;
    QString m_modelo;
    int m_ejercicio = 0;
    int m_periodo = 0;
    QString m_nif;
    QStringList m_copias;
    impreso::ValoresImpreso m_valores;
};

/// A4, upright, drawn from the sheet's corner. Throws on a machine that has nothing to write with.
void prepararPagina(QPagedPaintDevice &dispositivo);

/// Name of the program in printed documents.
inline constexpr QStringView AutorDocumento = u"Ostrel de seguros";
