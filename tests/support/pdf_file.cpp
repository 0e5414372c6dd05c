#include "tests/support/pdf_file.h"

namespace {

// Collects numbered objects and writes them as a file.
class pdf_writer
{
public:
    // Reserves the number of an object that is written later.
    int reserve()
    {
        objects.append(QByteArray());
        return static_cast<int>(objects.size());
    }

    void put(int number, const QByteArray& body) { objects[number - 1] = body; }

    int add(const QByteArray& body)
    {
        const int number = reserve();
        put(number, body);
        return number;
    }

    QByteArray file(int root, const QByteArray& more) const
    {
        QByteArray bytes = "%PDF-1.4\n";
        QByteArray table = "0000000000 65535 f \n";
        for (qsizetype i = 0; i < objects.size(); ++i) {
            table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
            bytes += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
        }
        const QByteArray count = QByteArray::number(objects.size() + 1);
        const QByteArray start = QByteArray::number(bytes.size());
        return bytes + "xref\n0 " + count + "\n" + table + "trailer\n<< /Size " + count +
               " /Root " + ref(root) + more + " >>\nstartxref\n" + start + "\n%%EOF\n";
    }

    static QByteArray ref(int number) { return QByteArray::number(number) + " 0 R"; }

private:
    QByteArrayList objects;
};

QByteArray utf16(const QString& text)
{
    QByteArray hex = "<FEFF";
    for (const QChar c : text)
        hex += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    return hex + ">";
}

QByteArray text_string(const QString& text)
{
    return "<" + text.toLatin1().toHex() + ">";
}

int add_page(pdf_writer& writer, int pages, int font, const QString& line)
{
    const QByteArray drawing = "BT /F1 12 Tf 40 500 Td " + text_string(line) + " Tj ET";
    const int content = writer.add("<< /Length " + QByteArray::number(drawing.size()) +
                                   " >>\nstream\n" + drawing + "\nendstream");
    return writer.add("<< /Type /Page /Parent " + pdf_writer::ref(pages) +
                      " /MediaBox [0 0 420 595] /Resources << /Font << /F1 " +
                      pdf_writer::ref(font) + " >> >> /Contents " + pdf_writer::ref(content) +
                      " >>");
}

// The bookmarks from `first` on that stand on the same level below `parent`, with all below them;
// answers the entries by which the parent refers to them.
QByteArray add_outline(pdf_writer& writer, const QList<pdf_bookmark>& all, const QList<int>& pages,
                       int parent, qsizetype first)
{
    QList<qsizetype> siblings;
    const int level = first < all.size() ? all[first].level : 0;
    for (qsizetype i = first; i < all.size() && all[i].level >= level; ++i) {
        if (all[i].level == level)
            siblings.append(i);
    }
    QList<int> numbers;
    for (qsizetype i = 0; i < siblings.size(); ++i)
        numbers.append(writer.reserve());
    for (qsizetype i = 0; i < siblings.size(); ++i) {
        const pdf_bookmark& each = all[siblings[i]];
        QByteArray body = "<< /Title " + utf16(each.title) + " /Parent " + pdf_writer::ref(parent) +
                          " /Dest [" + pdf_writer::ref(pages[each.page]) + " /XYZ 0 595 0]";
        if (i > 0)
            body += " /Prev " + pdf_writer::ref(numbers[i - 1]);
        if (i + 1 < siblings.size())
            body += " /Next " + pdf_writer::ref(numbers[i + 1]);
        const qsizetype child = siblings[i] + 1;
        if (child < all.size() && all[child].level > level)
            body += add_outline(writer, all, pages, numbers[i], child);
        writer.put(numbers[i], body + " >>");
    }
    return siblings.isEmpty() ? QByteArray()
                              : " /First " + pdf_writer::ref(numbers.first()) + " /Last " +
                                    pdf_writer::ref(numbers.last()) + " /Count " +
                                    QByteArray::number(siblings.size());
}

} // namespace

QByteArray pdf_file::bytes() const
{
    pdf_writer writer;
    const int catalog = writer.reserve();
    const int tree = writer.reserve();
    const int outline = writer.reserve();
    const int font = writer.add("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica "
                                "/Encoding /WinAnsiEncoding >>");
    QList<int> numbers;
    QByteArray kids;
    for (const QString& line : pages) {
        numbers.append(add_page(writer, tree, font, line));
        kids += pdf_writer::ref(numbers.last()) + " ";
    }
    writer.put(tree, "<< /Type /Pages /Kids [" + kids + "] /Count " +
                         QByteArray::number(pages.size()) + " >>");
    writer.put(outline,
               "<< /Type /Outlines" + add_outline(writer, bookmarks, numbers, outline, 0) + " >>");
    writer.put(catalog, "<< /Type /Catalog /Pages " + pdf_writer::ref(tree) + " /Outlines " +
                            pdf_writer::ref(outline) + " >>");
    QByteArray more;
    if (!title.isEmpty())
        more += " /Info " + pdf_writer::ref(writer.add("<< /Title " + utf16(title) + " >>"));
    if (encrypted) {
        const QByteArray key = "<" + QByteArray(64, 'A') + ">";
        more += " /ID [<00> <00>] /Encrypt " +
                pdf_writer::ref(writer.add("<< /Filter /Standard /V 1 /R 2 /P -4 /O " + key +
                                           " /U " + key + " >>"));
    }
    return writer.file(catalog, more);
}

pdf_file numbered_pages(int count)
{
    pdf_file file;
    for (int page = 1; page <= count; ++page)
        file.pages.append(QString("page %1").arg(page));
    return file;
}
