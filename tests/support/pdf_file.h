#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// A bookmark of a PDF file made for a test: level 0 is the top, a deeper one belongs to the last
/// one above it.
struct pdf_bookmark
{
    QString title;
    int page = 0; ///< counted from 0
    int level = 0;
};

/// A small PDF file made for a test, of A5 pages with one line of text each.
struct pdf_file
{
    QString title;     ///< of the metadata; none if empty
    QStringList pages; ///< the line of each page, in Latin-1
    QList<pdf_bookmark> bookmarks;
    bool encrypted = false; ///< with a password that nobody knows

    QByteArray bytes() const;
};

/// A file of so many pages with the lines "page 1", "page 2" and so on.
pdf_file numbered_pages(int count);
