// SPDX-License-Identifier: MIT
// Pictures of widgets against approved ones, stored in tests/qt/pictures. Used by the tests of what the windows look
// like.
#pragma once

#include <QImage>
#include <QRegion>
#include <QWidget>
#include <string>

namespace kestrel::testing {

// A picture, and where texts stand in it, in its pixels.
struct Picture {
  QImage image;
  QRegion texts;
};

Picture TakePicture(QWidget& widget);

// What differs between a picture and the approved one, as places of 16 x 16 pixels; nothing when nobody would see it.
//
// Letters are drawn a little differently by every release of Qt and of the font library, lines and grounds are not.
// So outside of texts, five pixels that differ are too many, and so is a ground that is another by a hair. Where there
// are texts, in either of the pictures, the ink of a place counts: it may be spread otherwise, not be more or less.
QRegion Difference(const Picture& now, const QImage& approved);

// Compares with the approved picture of that name and says where they differ: in any pixel where this machine draws
// letters, shapes and Qt's own widgets to the pixel as the one that drew the approved pictures ("drawn_by_qt"), else as
// Difference() tells. Then approved picture, present one and the difference are left side by side in NAME.png in the
// folder "pictures" where the test runs. With KESTREL_RENEW=1 the present picture is stored as the approved one
// instead, and so is "drawn_by_qt": look at it.
void ExpectApproved(const std::string& name, const Picture& now);

// Compares what cannot be seen of a window with the approved text of that name, where this machine draws alike; elsewhere
// nothing is compared: what assistive tools are told - roles, names, values, states, places, actions - and the properties
// of all objects that are not those of a plain widget. KESTREL_RENEW=1 stores it.
void ExpectApprovedInside(const std::string& name, QWidget& window);

}  // namespace kestrel::testing
