#include "pipeline/StartUpPictures.h"

#include "core/BackgroundThread.h"
#include "core/files/Places.h"
#include "core/image/ImageReader.h"
#include "formats/Installation.h"

namespace tavrin {

namespace {

LoadedPicture loadPicture(const std::string& path) {
    LoadedPicture picture;
    picture.Image = myCreateImageUsingImageSourceFromFile(path);
    if (picture.Image.isNull()) return picture;
    picture.rawData = picture.Image.constBits();
    picture.iWidth = picture.Image.width();
    picture.iHeight = picture.Image.height();
    picture.stride = picture.iWidth * picture.Image.depth() / 8;
    return picture;
}

}  // namespace

void loadTextIcons(StartUpPictures& pictures) {
    const Places& places = Places::current();
    pictures.TextEditIcon = loadPicture(places.textIconsFolder() + "Edit.png");
    pictures.TextDeleteIcon = loadPicture(places.textIconsFolder() + "Delete.png");
    pictures.iTextIconWidth = pictures.TextEditIcon.iWidth;
    pictures.iTextIconHeight = pictures.TextEditIcon.iHeight;
}

void loadSketchPictures(StartUpPictures& pictures) {
    const std::pair<LoadedPicture*, const char*> wanted[] = {
        {&pictures.PencilCross2, "PencilDenseCross.jpg"},
        {&pictures.PencilCross, "PencilDense.jpg"},
        {&pictures.LightParchment, "lightParchment.jpg"},
    };
    for (const auto& [picture, file] : wanted) {
        GivingWay::ask();  // each takes some milliseconds to decode
        if (!picture->rawData) *picture = loadPicture(shippedPicture("Texture/Sketch/" + std::string(file)));
    }
}

}  // namespace tavrin
