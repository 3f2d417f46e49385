#include "desktop/windows/FormPrinter.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QPainter>
#include <QPicture>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>

#include "desktop/windows/WindowDisplay.h"

namespace platform::desktop {

namespace {

/// Where a player looks for what a program has written; the current folder is that of the records.
QString DocumentsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFile::exists(documents) ? documents : QDir::homePath();
}

/// A file for a page of this name that is not there yet: a second copy does not take the place of the first.
QString NewFile(const QString& name) {
    const QString start = DocumentsFolder() + '/' + name;
    QString file = start + ".pdf";
    for (int copy = 2; QFile::exists(file); ++copy) file = QString("%1 (%2).pdf").arg(start).arg(copy);
    return file;
}

/// By the system's dialog; where that knows nothing but printers, and there is none, by asking for a file.
bool Choose(QPrinter& printer, QWidget* owner) {
#ifdef Q_OS_WIN
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        const QString file = QFileDialog::getSaveFileName(owner, "Imprimir", printer.outputFileName(), "PDF (*.pdf)");
        printer.setOutputFileName(file);
        return !file.isEmpty();
    }
#endif
    QPrintDialog dialog(&printer, owner);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace

FormPrinter::FormPrinter(WindowDisplay& display) : display_(display) {}

FormPrinter::~FormPrinter() = default;

bool FormPrinter::ShowDialog() {
    display_.Refresh();
    FormWindow* const window = display_.FrontWindow();
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (window != nullptr) ProposePage(*window, *printer);
    if (!Choose(*printer, window)) return false;
    printer_ = std::move(printer);
    return true;
}

void FormPrinter::PrintForm(const Form& form) {
    FormWindow* const window = display_.WindowOf(form);
    if (window == nullptr || printer_ == nullptr) return;
    window->Refresh();
    PrintWidget(window->ClientArea(), *printer_);
}

void ProposePage(const FormWindow& window, QPrinter& printer) {
    const QSize page = window.ClientArea().size();
    printer.setPageOrientation(page.width() > page.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setDocName(window.windowTitle());
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) return;
    printer.setOutputFileName(NewFile(printer.docName()));
}

void PrintWidget(QWidget& widget, QPrinter& printer) {
    // A widget that renders straight to a printer becomes one bitmap; by way of a picture it stays what was drawn.
    QPicture picture;
    widget.render(&picture);
    QPainter painter(&printer);
    if (!painter.isActive()) return;
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    const double factor = std::min(static_cast<double>(page.width()) / widget.width(),
                                   static_cast<double>(page.height()) / widget.height());
    painter.scale(factor, factor);
    painter.setClipRect(widget.rect());
    // QPainter draws a QPicture in inches of its own resolution; this gives one of its pixels one unit of the page.
    const double pixels = static_cast<double>(picture.logicalDpiX()) / printer.logicalDpiX();
    painter.scale(pixels, pixels);
    painter.drawPicture(0, 0, picture);
}

}  // namespace platform::desktop
