#include "Layout.h"

#include "Limits.h"
#include "Reports.h"
#include "StyleSheet.h"

#include <litehtml/litehtml.h> // the others build on it

#include <litehtml/el_space.h>
#include <litehtml/el_text.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <unordered_map>

namespace Rocket::Core {

namespace {

// Elements that stand below each other; whatever else is inline. Colours and fonts are a document's own business.
const char* const BASE_STYLES = "html, body, div, p, h1, h2, h3, h4, h5, h6, ul, ol, li, form, header, footer, section"
                                " { display: block; }\n"
                                "img, button, input, select, textarea, video, progress { display: inline-block; }\n"
                                "head, title, style, script, link { display: none; }\n";

/// A document asks for more work than a layout is worth.
class TooMuchWork : public std::runtime_error {
public:
  TooMuchWork() : std::runtime_error("its layout takes too much work") {}
};

/// What layout and style may cost, in elements looked at.
class Work {
public:
  void add(std::size_t steps) {
    mDone += steps;
    if (mDone > MAXIMUM) throw TooMuchWork();
  }

private:
  static constexpr std::size_t MAXIMUM = 2'000'000;
  std::size_t mDone = 0;
};

/// An element of ours in litehtml's tree. It counts what is done with it, and takes part in no table: RML has none.
class Box : public litehtml::html_tag {
public:
  Box(const std::shared_ptr<litehtml::document>& document, Work& work) : html_tag(document), mWork(work) {}

  /// While its inside is laid out, a width in percent is the pixels that it comes to: litehtml would take the percents
  /// of parent and child off the same width one after the other.
  int render(int x, int y, int maxWidth, bool secondPass) override {
    mWork.add(1 + m_children.size());
    const litehtml::css_length width = m_css_width;
    if (!width.is_predefined() && width.units() == litehtml::css_units_percentage)
      m_css_width.set_value(static_cast<float>(secondPass ? m_pos.width : width.calc_percent(maxWidth)),
                            litehtml::css_units_px);
    const int used = html_tag::render(x, y, maxWidth, secondPass);
    m_css_width = width;
    return used;
  }
  int render_inline(const litehtml::element::ptr& container, int maxWidth) override {
    mWork.add(1 + m_children.size());
    return html_tag::render_inline(container, maxWidth);
  }
  int place_element(const litehtml::element::ptr& child, int maxWidth) override {
    mWork.add(1);
    return html_tag::place_element(child, maxWidth);
  }
  void add_float(const litehtml::element::ptr& child, int x, int y) override {
    mWork.add(m_floats_left.size() + m_floats_right.size());
    html_tag::add_float(child, x, y);
  }
  int get_line_left(int y) override {
    mWork.add(1 + m_floats_left.size());
    return html_tag::get_line_left(y);
  }
  int get_line_right(int y, int defaultRight) override {
    mWork.add(1 + m_floats_right.size());
    return html_tag::get_line_right(y, defaultRight);
  }
  int find_next_line_top(int top, int width, int defaultRight) override {
    mWork.add((1 + m_floats_left.size() + m_floats_right.size()) * (1 + m_floats_left.size() + m_floats_right.size()));
    return html_tag::find_next_line_top(top, width, defaultRight);
  }
  int select(const litehtml::css_selector& selector, bool applyPseudo) override {
    mWork.add(1);
    return html_tag::select(selector, applyPseudo);
  }
  int select(const litehtml::css_element_selector& selector, bool applyPseudo) override {
    return html_tag::select(selector, applyPseudo);
  }
  litehtml::element::ptr find_adjacent_sibling(const litehtml::element::ptr& child,
                                               const litehtml::css_selector& selector, bool applyPseudo,
                                               bool* isPseudo) override {
    mWork.add(1 + m_children.size());
    return html_tag::find_adjacent_sibling(child, selector, applyPseudo, isPseudo);
  }
  litehtml::element::ptr find_sibling(const litehtml::element::ptr& child, const litehtml::css_selector& selector,
                                      bool applyPseudo, bool* isPseudo) override {
    mWork.add(1 + m_children.size());
    return html_tag::find_sibling(child, selector, applyPseudo, isPseudo);
  }
  bool is_nth_child(const litehtml::element::ptr& child, int number, int offset, bool ofType) const override {
    mWork.add(1 + m_children.size());
    return html_tag::is_nth_child(child, number, offset, ofType);
  }
  bool is_nth_last_child(const litehtml::element::ptr& child, int number, int offset, bool ofType) const override {
    mWork.add(1 + m_children.size());
    return html_tag::is_nth_last_child(child, number, offset, ofType);
  }
  bool is_only_child(const litehtml::element::ptr& child, bool ofType) const override {
    mWork.add(1 + m_children.size());
    return html_tag::is_only_child(child, ofType);
  }
  void parse_styles(bool again) override {
    html_tag::parse_styles(again);
    switch (m_display) {
    case litehtml::display_inline_table:
      m_display = litehtml::display_inline_block;
      break;
    case litehtml::display_table:
    case litehtml::display_table_caption:
    case litehtml::display_table_cell:
    case litehtml::display_table_column:
    case litehtml::display_table_column_group:
    case litehtml::display_table_footer_group:
    case litehtml::display_table_header_group:
    case litehtml::display_table_row:
    case litehtml::display_table_row_group:
    case litehtml::display_list_item:
      m_display = litehtml::display_block;
      break;
    default:
      break;
    }
  }
  bool is_break() const override { return m_tag == "br"; }
  /// RML may call any element so; the page's body is the one right below its root.
  bool is_body() const override { return m_tag == "body" && have_parent() && !parent()->have_parent(); }

private:
  Work& mWork;
};

/// What litehtml asks of the program that shows a page. Nothing is drawn; a font is its size in pixels.
class Screen final : public litehtml::document_container {
public:
  explicit Screen(Work& work) : mWork(work) {}

  litehtml::uint_ptr create_font(const char* /*face*/, int size, int /*weight*/, litehtml::font_style /*italic*/,
                                 unsigned int /*decoration*/, litehtml::font_metrics* metrics) override {
    const int height = std::clamp(size, 0, 1000);
    metrics->height = height + height / 5;
    metrics->descent = height / 5;
    metrics->ascent = height;
    metrics->x_height = height / 2;
    metrics->draw_spaces = false;
    return static_cast<litehtml::uint_ptr>(height);
  }
  void delete_font(litehtml::uint_ptr /*font*/) override {}
  int text_width(const char* text, litehtml::uint_ptr font) override {
    mWork.add(1);
    std::size_t letters = 0;
    for (const char* byte = text; *byte && letters < 100'000; ++byte)
      if ((static_cast<unsigned char>(*byte) & 0xC0u) != 0x80u) ++letters;
    return static_cast<int>((letters * font + 1) / 2);
  }
  void draw_text(litehtml::uint_ptr, const char*, litehtml::uint_ptr, litehtml::web_color,
                 const litehtml::position&) override {}
  int pt_to_px(int points) const override { return points * 4 / 3; }
  int get_default_font_size() const override { return 16; }
  const char* get_default_font_name() const override { return "sans-serif"; }
  void draw_list_marker(litehtml::uint_ptr, const litehtml::list_marker&) override {}
  void load_image(const char*, const char*, bool) override {}
  void get_image_size(const char*, const char*, litehtml::size&) override {}
  void draw_background(litehtml::uint_ptr, const litehtml::background_paint&) override {}
  void draw_borders(litehtml::uint_ptr, const litehtml::borders&, const litehtml::position&, bool) override {}
  void set_caption(const char*) override {}
  void set_base_url(const char*) override {}
  void link(const std::shared_ptr<litehtml::document>&, const litehtml::element::ptr&) override {}
  void on_anchor_click(const char*, const litehtml::element::ptr&) override {}
  void set_cursor(const char*) override {}
  void transform_text(litehtml::tstring&, litehtml::text_transform) override {}
  void import_css(litehtml::tstring& text, const litehtml::tstring&, litehtml::tstring&) override { text.clear(); }
  void set_clip(const litehtml::position&, const litehtml::border_radiuses&, bool, bool) override {}
  void del_clip() override {}
  void get_client_rect(litehtml::position& client) const override {
    client = litehtml::position(0, 0, VIEW_WIDTH, VIEW_HEIGHT);
  }
  std::shared_ptr<litehtml::element> create_element(const char* tag, const litehtml::string_map& attributes,
                                                    const std::shared_ptr<litehtml::document>& document) override {
    auto box = std::make_shared<Box>(document, mWork);
    box->set_tagName(tag);
    for (const auto& [name, value] : attributes)
      box->set_attr(name.c_str(), value.c_str());
    return box;
  }
  void get_media_features(litehtml::media_features& media) const override {
    media.type = litehtml::media_type_screen;
    media.width = media.device_width = VIEW_WIDTH;
    media.height = media.device_height = VIEW_HEIGHT;
    media.color = 8;
    media.monochrome = 0;
    media.color_index = 256;
    media.resolution = 96;
  }
  void get_language(litehtml::tstring& language, litehtml::tstring& culture) const override {
    language = "en";
    culture.clear();
  }

private:
  Work& mWork;
};

std::string styleText(const Element& element) {
  std::string text;
  for (const auto& [name, value] : element.GetLocalProperties().GetValues())
    if (isSafeValue(value)) text += name + ": " + value + "; ";
  return text;
}

bool isBlank(char character) {
  return character == ' ' || character == '\t' || character == '\n' || character == '\r' || character == '\f';
}

}

class Layout::Boxes {
public:
  explicit Boxes(const ElementDocument& document);

  const litehtml::element* find(const Element& element) const {
    const auto found = mBoxes.find(&element);
    return found == mBoxes.end() ? nullptr : found->second.get();
  }
  litehtml::element* find(const Element& element) {
    const auto found = mBoxes.find(&element);
    return found == mBoxes.end() ? nullptr : found->second.get();
  }

private:
  void describe(const Element& element, litehtml::element& box);
  void addContent(const Element& element, litehtml::element& box);
  void addText(const String& text, litehtml::element& box);

  Work mWork;
  Screen mScreen{mWork};
  litehtml::context mContext;
  std::shared_ptr<litehtml::document> mPage; ///< behind what it asks
  std::unordered_map<const Element*, litehtml::element::ptr> mBoxes;
};

void Layout::Boxes::describe(const Element& element, litehtml::element& box) {
  for (const auto& [name, value] : element.GetAttributes().GetValues())
    if (name != "style") box.set_attr(name.c_str(), value.c_str());
  box.set_attr("style", styleText(element).c_str());
  for (const char* state : {"hover", "focus", "active"})
    if (element.IsPseudoClassSet(state)) box.set_pseudo_class(state, true);
}

void Layout::Boxes::addText(const String& text, litehtml::element& box) {
  for (std::size_t at = 0; at < text.size();) {
    mWork.add(1);
    const bool blank = isBlank(text[at]);
    std::size_t end = at + 1;
    while (!blank && end < text.size() && !isBlank(text[end]))
      ++end;
    const std::string part = text.substr(at, end - at);
    if (blank)
      box.appendChild(std::make_shared<litehtml::el_space>(part.c_str(), mPage));
    else
      box.appendChild(std::make_shared<litehtml::el_text>(part.c_str(), mPage));
    at = end;
  }
}

void Layout::Boxes::addContent(const Element& element, litehtml::element& box) {
  for (const Element::Content& content : element.GetContent()) {
    mWork.add(1);
    if (!content.element) {
      addText(content.text, box);
      continue;
    }
    const auto child = std::make_shared<Box>(mPage, mWork);
    child->set_tagName(content.element->GetTagName().c_str());
    describe(*content.element, *child);
    box.appendChild(child);
    mBoxes[content.element.get()] = child;
    addContent(*content.element, *child);
  }
}

Layout::Boxes::Boxes(const ElementDocument& document) {
  mContext.load_master_stylesheet(BASE_STYLES);
  litehtml::css sheet;
  sheet.parse_stylesheet(document.GetStyleSheet().c_str(), nullptr, nullptr, nullptr);
  sheet.sort_selectors();

  mPage = litehtml::document::createFromUTF8("<html><body></body></html>", &mScreen, &mContext);
  const litehtml::element::ptr root = mPage->root();
  litehtml::element::ptr body;
  for (std::size_t child = 0; root && child < root->get_children_count(); ++child)
    if (root->get_child(static_cast<int>(child))->is_body()) body = root->get_child(static_cast<int>(child));
  if (!body) throw TooMuchWork();
  mBoxes[&document] = body;
  describe(document, *body);
  addContent(document, *body);
  body->apply_stylesheet(mContext.master_css());
  body->parse_attributes();
  body->apply_stylesheet(sheet);
  body->parse_styles();
  body->init();
  mPage->render(VIEW_WIDTH);
}

Layout::Layout(const ElementDocument& document) {
  try {
    mBoxes = std::make_unique<Boxes>(document);
  } catch (const TooMuchWork& fault) {
    warn("\"" + document.GetSourceURL() + "\" isn't laid out: " + fault.what());
  }
}

Layout::~Layout() = default;

bool Layout::isDisplayed(const Element& element) const {
  for (const Element* at = &element; at; at = at->GetParentNode()) {
    const litehtml::element* box = mBoxes ? mBoxes->find(*at) : nullptr;
    const String* local = at->GetLocalProperty("display");
    if (box ? box->get_display() == litehtml::display_none : local && *local == "none") return false;
  }
  return true;
}

bool Layout::isVisible(const Element& element) const {
  const litehtml::element* box = mBoxes ? mBoxes->find(element) : nullptr;
  return isDisplayed(element) && (!box || box->get_visibility() == litehtml::visibility_visible);
}

LayoutSize Layout::getClientSize(const Element& element) const {
  litehtml::element* box = mBoxes ? mBoxes->find(element) : nullptr;
  if (!box || !isDisplayed(element)) return {};
  if (box->get_display() != litehtml::display_inline) {
    const litehtml::position place = box->get_position();
    const litehtml::margins padding = box->get_paddings();
    return {static_cast<float>(place.width + padding.width()), static_cast<float>(place.height + padding.height())};
  }
  litehtml::position::vector lines;
  box->get_inline_boxes(lines);
  LayoutSize size;
  for (const litehtml::position& line : lines) {
    size.width = std::max(size.width, static_cast<float>(line.width));
    size.height += static_cast<float>(line.height);
  }
  return size;
}

}
