#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

namespace {

constexpr int kDotsPerInch = 300;
constexpr double kMargin = 18.0; // mm

const QString kStyle = QStringLiteral("body { color: #20262c; }"
                                      "h1 { color: #2e5f93; font-size: 18pt; font-weight: 600; }"
                                      "h2 { color: #2e5f93; font-size: 12pt; font-weight: 600;"
                                      "     margin-top: 14px; margin-bottom: 4px; }"
                                      "p, li { margin-top: 3px; margin-bottom: 3px; }"
                                      "th { text-align: left; background-color: #dce7f2; }"
                                      "td { border-bottom: 1px solid #c9d3dc; }");

QString ReadPage(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    return QString::fromUtf8(file.readAll());
}

/// A help page is one sheet: whoever presses F1 wants an answer, not a manual.
void WritePdf(QTextDocument& document, const QString& path)
{
    QPdfWriter writer(path);
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Millimeter);
    writer.setTitle(document.metaInformation(QTextDocument::DocumentTitle));

    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(QSizeF(writer.width(), writer.height()));
    if (document.pageCount() != 1) {
        throw std::runtime_error("more than one page: " + path.toStdString());
    }
    QPainter painter(&writer);
    if (!painter.isActive()) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
    document.drawContents(&painter);
}

void MakePage(const QString& source, const QString& target)
{
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("sans-serif"), 10));
    document.setDefaultStyleSheet(kStyle);
    document.setDocumentMargin(0);
    document.setHtml(ReadPage(source));
    WritePdf(document, target);
}

} // namespace

/// Makes a help page in PDF of one in HTML.
int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: radsel_make_help <page.html> <page.pdf>\n";
        return EXIT_FAILURE;
    }
    // A build has no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        MakePage(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_help: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
