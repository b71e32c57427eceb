#include "delivery/pages/ComparePage.h"

#include <algorithm>
#include <filesystem>

#include "core/files/Places.h"
#include "delivery/pages/HtmlText.h"
#include "folders/NextFileInFolder.h"
#include "folders/PictureFolder.h"

namespace tavrin {

namespace {

std::string styles() {
    std::string styles = "<style>";
    for (int box = 1; box <= 5; ++box)
        styles += "#div" + std::to_string(box) + "{width:570px;height:800px;padding:10px;border:1px solid #aaaaaa;}";
    // As wide as an upright picture, so that those that are not read yet stand apart.
    return styles + "#ImageDiv td{min-width:300px;}#ImageDiv img:not([src]){visibility:hidden;}</style>";
}

/// What the page does by itself. Pictures are read when they come near the part of the strip that is seen, and given
/// back when they have left it, so a thousand cost no more than a few. Those that could not be read are tried again
/// each second, since they may still be on their way into the folder.
std::string script(int pictures, int scrolled) {
    return "<script>\nvar firsttime=true;\n"
           "function RefreshImages(){\n"
           "if(firsttime){\n"
           "if(!('naturalWidth' in document.createElement('img'))) alert('sBrowserError1');\n"
           "document.getElementById('ImageDiv').scrollLeft=" +
           std::to_string(scrolled) +
           ";\nReadSeenImages();\nfirsttime=false;\n}\n"
           "for(var i=0;i<" +
           std::to_string(pictures) +
           ";i++){\n"
           "var image=document.getElementById('drag'+i);\n"
           "if(image&&image.hasAttribute('src')&&image.complete&&image.naturalWidth==0) "
           "image.src=image.src.split('?')[0]+'?'+Math.random();\n"
           "}\n"
           "setTimeout(RefreshImages,1000);\n}\n"
           "function ReadSeenImages(){\n"
           "var seen=new IntersectionObserver(function(images){ images.forEach(function(change){\n"
           "var image=change.target;\n"
           "if(change.isIntersecting) image.src=image.dataset.src;\n"
           "else if(image.naturalWidth>0) image.removeAttribute('src');\n"
           "}); },{root:document.getElementById('ImageDiv'),rootMargin:'0px 1500px'});\n"
           "document.querySelectorAll('#ImageDiv img').forEach(function(image){\n"
           "image.onload=function(){ image.parentNode.style.minWidth=image.width+'px'; };\n"  // its place stays
           "seen.observe(image);\n});\n}\n"
           "function OnScrollDiv(div){\n"  // a browser has nobody who listens
           "if(window.external&&window.external.LastScroll) window.external.LastScroll(div.scrollLeft);\n}\n"
           "function imgDoubleClick(indx){ window.location.href=indx; }\n"
           "function newFolder(){ window.location.href='" +
           kChangeFolderLink +
           "'; }\n"
           "function allowDrop(ev){ ev.preventDefault(); }\n"
           "function drag(ev){\n"
           "if(ev.target==null) alert('sBrowserError2');\n"
           "else ev.dataTransfer.setData('text',ev.target.id);\n}\n"
           "function drop(ev){\n"
           "ev.preventDefault();\n"
           "var id=ev.dataTransfer.getData('text');\n"
           "var dragged=document.getElementById(id);\n"
           "var box=document.getElementById(ev.currentTarget.id.replace('new',''));\n"
           "if(!dragged||!box) return;\n"
           "var copy=dragged.cloneNode(true);\n"
           "copy.id='new'+box.id;\n"
           "copy.removeAttribute('height');\n"
           "if(dragged.naturalWidth>dragged.naturalHeight) copy.width=570; else copy.height=800;\n"
           "box.replaceChildren(copy);\n}\n"
           "</script>";
}

std::string pictureCell(const std::string& path, int index) {
    const std::string number = std::to_string(index);
    return "<td><img id='drag" + number + "' height='400' decoding='async' data-src='file://" + linkPath(path) +
           "' draggable='true' ondragstart='drag(event)' ondblclick='imgDoubleClick(" + number + ")'/><br/>" +
           htmlText(std::filesystem::path(path).filename().string()) + "</td>";
}

std::string strip(const std::vector<std::string>& pictures, int width) {
    std::string html = "<div id='ImageDiv' style='height:450px;width:" + std::to_string(width) +
                       "px;overflow-x: scroll;' onscroll='OnScrollDiv(this);'><table><tr>";
    const int count = std::min(static_cast<int>(pictures.size()), kMostCompared);
    for (int i = 0; i < count; ++i)
        if (const std::string& path = pictures[static_cast<std::size_t>(i)]; path.find('%') == std::string::npos)
            html += pictureCell(path, i);
    return html + "</tr></table></div>";
}

std::string boxes() {
    std::string html = "<table><tr>";
    for (int box = 1; box <= 5; ++box) {
        html += "<td><div id='div" + std::to_string(box) + "' ondrop='drop(event)' ondragover='allowDrop(event)'>";
        if (box == 1)
            html += "Directions:<br/>Drag image to review section.<br/>Double click on any image to select.";
        html += "</div></td>";
    }
    return html + "</tr></table>";
}

}  // namespace

std::string comparePagePath() {
    return Places::current().tempFilesFolder() + "CompareFiles.htm";
}

WrittenPages setupCompareFiles(const CompareWish& wish, const std::atomic<bool>* stop) {
    WrittenPages written;
    CreateListOfFilesInFolder(written.pictures, wish.folder, stop);
    if (written.pictures.empty() || (stop && *stop)) return {};
    sortAsPeopleDo(written.pictures);  // most systems list a folder in no order that people see
    const std::string html =
        "<!DOCTYPE HTML>\n<html><head><meta http-equiv='X-UA-Compatible' content='IE=Edge'> \n" + styles() +
        script(static_cast<int>(written.pictures.size()), wish.scrolled) +
        "</head><body onLoad='RefreshImages();'><table width='100%'><tr><td bgcolor=\"#009900\">"
        "<font color='white' size='5'><b>Foreground File Pick and Compare</b></font> "
        "<input type='button' value='Change Image Folder' onclick='newFolder()'/></td></tr></table>" +
        strip(written.pictures, static_cast<int>(0.9 * wish.screenWidth)) + boxes() + "</body></html>";
    std::error_code ignored;  // what is wrong with the folder is told with the file
    std::filesystem::create_directories(Places::current().tempFilesFolder(), ignored);
    written.count = 1;
    written.problem = writeHtml(comparePagePath(), html);
    return written;
}

}  // namespace tavrin
