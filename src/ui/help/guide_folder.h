// Where the guide is.
#pragma once

#include <QString>

namespace kirto {

// The folder with the guide's pages for a program in that folder: beside a program that was just
// built, else where programs are installed with it. Without symbolic links; empty where there is
// no guide. Any thread.
QString GuideFolder(const QString& program_folder);

}  // namespace kirto
