#include "plot/reading/result_file.h"

#include <QFileInfo>

bool open_result_file(QFile& file)
{
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly);
}
