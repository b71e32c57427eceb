#pragma once

#include <memory>
#include <string>

namespace tavrin {

class PrivateFolder;

/// The folders that the program keeps its files in. Every folder ends with a slash. There is one for the whole
/// process; programs and tests that want other folders set them before anything else starts.
class Places {
  public:
    static Places& current();

    Places();
    ~Places();

    std::string sharedFolder() const { return shared_; }      ///< what belongs to the installation
    std::string picturesFolder() const { return pictures_; }  ///< what belongs to the user
    std::string xmlFolder() const { return shared_ + "QLXXML/"; }
    std::string tempFilesFolder() const { return tempFiles_.empty() ? shared_ + "TempFiles/" : tempFiles_; }

    /// Apart from one another, so that a folder of portraits holds nothing else.
    std::string samplePortraitsFolder() const { return pictures_ + "Samples/Portraits/"; }
    std::string sampleBackgroundsFolder() const { return pictures_ + "Samples/Backgrounds/"; }
    std::string textIconsFolder() const { return pictures_ + "EditTextIcons/"; }
    std::string frameFolder() const { return pictures_ + "FrameAndSilhouetteBackgrounds/"; }
    std::string overlaysFolder() const { return pictures_ + "Overlays/"; }
    std::string textureFolder() const { return pictures_ + "Texture/"; }
    std::string sketchFolder() const { return textureFolder() + "Sketch/"; }

    std::string settingsFile() const { return xmlFolder() + "QLX12.xml"; }
    std::string defaultStateFile() const { return xmlFolder() + "Default.qlx"; }
    std::string imageSizeFile() const { return xmlFolder() + "ImageSize.xml"; }
    std::string customImageSizeFile() const { return xmlFolder() + "CustomImageSize.xml"; }
    std::string printerFile() const { return xmlFolder() + "Printer.xml"; }
    std::string customPrinterFile() const { return xmlFolder() + "PrinterCustom.xml"; }
    std::string windowFile() const { return xmlFolder() + "Window.ini"; }  ///< what the window remembers for itself
    std::string recoveryFolder() const { return xmlFolder() + "Recovery/"; }  ///< recipes of programs that run
    std::string recipesFolder() const { return shared_ + "Recipes/"; }        ///< recipes of portraits
    std::string looksFolder() const { return pictures_ + "Looks/"; }          ///< looks by name

    void setSharedFolder(const std::string& folder);
    void setPicturesFolder(const std::string& folder);

    /// Keeps temporary files in a new folder of this process, which goes away with it, so that a second program never
    /// clears or reads those of the first. Folders of programs that were killed on this machine are removed first.
    /// @return "" or one line that says why there is none; the shared one stays in use then
    std::string usePrivateTempFiles();

    /// Makes the folders that are missing.
    /// @return "" or one line that names the folder that cannot be made
    std::string createFolders() const;

  private:
    std::string shared_, pictures_, tempFiles_;
    std::unique_ptr<PrivateFolder> privateTempFiles_;
};

}  // namespace tavrin
