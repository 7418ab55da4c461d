#pragma once

#include <QDir>
#include <QString>
#include <QWidget>

namespace Apps {

/// The pictures of a tour: of the window with the boxes and lists that are open above it.
class Album {
  public:
    /// Removes the pictures of an earlier tour from the directory.
    Album(QWidget& window, const QString& directory);

    /// "Choose a patient" becomes "01-choose-a-patient.png". Fails when it cannot be written, and where a
    /// text in it does not fit (`clippedTexts`) or a shortcut has two uses (`doubledShortcuts`).
    void add(const QString& title);

    /// Prints how many pictures there are, and where.
    void printCount() const;

  private:
    void requireUsable() const;
    QImage pictureAtRest() const;
    QImage picture() const;

    QWidget& mWindow;
    QDir mDirectory;
    int mCount = 0;
};

} // namespace Apps
