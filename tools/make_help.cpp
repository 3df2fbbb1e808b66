#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QHashSeed>
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

/// The date in the page becomes that of the sources where the builder says it, so that every build
/// of them gives the same page.
void UseSourceDate(QByteArray& pdf)
{
    bool bKnown = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&bKnown);
    if (!bKnown) {
        return;
    }
    const QByteArray before = "/CreationDate (D:";
    const QByteArray date =
        QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString("yyyyMMddHHmmss").toLatin1();
    const auto place = pdf.indexOf(before);
    if (place < 0) {
        throw std::runtime_error("a page without a date");
    }
    pdf.replace(place + before.size(), date.size(), date);
}

/// A help page is one sheet: whoever presses F1 wants an answer, not a manual.
QByteArray MakePdf(QTextDocument& document)
{
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Millimeter);
    writer.setTitle(document.metaInformation(QTextDocument::DocumentTitle));

    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(QSizeF(writer.width(), writer.height()));
    if (document.pageCount() != 1) {
        throw std::runtime_error("more than one page");
    }
    QPainter painter(&writer);
    document.drawContents(&painter);
    painter.end();
    return pdf.data();
}

void MakePage(const QString& source, const QString& target)
{
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("sans-serif"), 10));
    document.setDefaultStyleSheet(kStyle);
    document.setDocumentMargin(0);
    document.setHtml(ReadPage(source));
    QByteArray pdf = MakePdf(document);
    UseSourceDate(pdf);
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.flush()) {
        throw std::runtime_error("cannot write " + target.toStdString());
    }
}

} // namespace

/// Makes a help page in PDF of one in HTML.
int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: radsel_make_help <page.html> <page.pdf>\n";
        return EXIT_FAILURE;
    }
    // A build has no screen; its time zone and the order of tables in memory must not show in the
    // page.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    try {
        MakePage(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_help: " << argv[1] << ": " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
