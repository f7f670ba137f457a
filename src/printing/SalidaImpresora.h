#pragma once

#include <QStringList>

#include <functional>
#include <memory>

namespace impreso {
struct Listado;
}
class QPrinter;
class QPrintPreviewDialog;
class QWidget;
class TrabajoImpresion;

/// The one printer of a print screen, from its set-up through the preview to the printing.
class SalidaImpresora
{
public:
    SalidaImpresora();
    ~SalidaImpresora();
    SalidaImpresora(const SalidaImpresora &) = delete;
    SalidaImpresora &operator=(const SalidaImpresora &) = delete;

    /// Whether the platform has any printer installed.
    static bool hayImpresoras();

    /// Chooses an installed printer by name; false when there is none called so.
    bool elegir(const QString &nombre);
    /// What is printed on, for the user: the printer, the file chosen in its place, or "none".
    QString nombre() const;
    /// The file that the printer's options name in the place of a printer; empty for paper.
    QString fichero() const;
    /// The files that are printed to where the printer's options say so, one a copy; none for a
    /// printer of paper.
    QStringList ficheros(const QStringList &copias) const;

    /// The platform's printer dialogue.
    void opciones(QWidget *padre);
    /// A list on screen, from where it is printed.
    void vistaPrevia(QWidget *padre, const impreso::Listado &listado);
    /// The copies on screen.
    void vistaPrevia(QWidget *padre, TrabajoImpresion &trabajo);
    /// Every copy as a document of its own; false when the printer did not take one.
    bool imprimir(TrabajoImpresion &trabajo);

private:
    void preparar(const QString &titulo);
    void mostrarVistaPrevia(QWidget *padre, const std::function<void(QPrinter &)> &dibujar,
                            bool imprimible);

    std::unique_ptr<QPrinter> m_impresora;
};
