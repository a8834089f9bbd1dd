// Fuzzes documents: RML, style sheets and style attributes of strangers. Whatever is read is laid out, hears events,
// and is written so that it reads as the same again.
#include "Rocket/Core.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using Rocket::Core::Element;
using Rocket::Core::ElementDocument;

void askEverything(Element& element) {
  static_cast<void>(element.IsVisible());
  static_cast<void>(element.GetClientWidth());
  static_cast<void>(element.GetText());
  for (int child = 0; child < element.GetNumChildren(); ++child)
    askEverything(*element.GetChild(child));
}

void requireSame(const std::string& written, const std::string& again) {
  if (written == again) return;
  std::fprintf(stderr, "written as: %s\nread and written again: %s\n", written.c_str(), again.c_str());
  std::abort();
}

/// The part up to the next zero byte, which is taken off.
std::string takePart(std::string_view& text) {
  const std::size_t end = text.find('\0');
  std::string part(text.substr(0, end));
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return part;
}

}

/// A style sheet, an inner RML, a style attribute and a second inner RML, zero bytes between.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string sheet = takePart(text), rml = takePart(text), style = takePart(text), second = takePart(text);
  const auto document = ElementDocument::Read("<rml><head><style><![CDATA[" +
                                                  (sheet.find("]]>") == std::string::npos ? sheet : std::string()) +
                                                  "]]></style></head><body><div id=\"own\"/></body></rml>",
                                              "fuzz.rml");
  if (!document) std::abort();
  document->SetShown(true);
  document->SetEventHandler([&](const Rocket::Core::String& name, Rocket::Core::Event& event) {
    if (event.GetTargetElement()) event.GetTargetElement()->SetInnerRML(name);
  });
  Element& own = *document->GetElementById("own");
  if (own.SetInnerRML(rml)) {
    const std::string written = own.GetInnerRML();
    if (!own.SetInnerRML(written)) std::abort();
    requireSame(written, own.GetInnerRML());
  }
  own.SetAttribute("style", style);
  askEverything(*document);
  if (Element* child = own.GetChild(0)) {
    child->SetAttribute("style", style);
    child->Click();
  }
  own.SetInnerRML(second);
  askEverything(*document);
  return 0;
}
