#include "kit/symbols.h"

#include <algorithm>
#include <array>

namespace tidewell {

namespace {

using Inner = SymbolGlyph::Inner;

struct SymbolRow {
    std::string_view name;
    SymbolGlyph glyph;
};

/// Sorted by name. The comments give the font's own names.
constexpr std::array symbolRows = std::to_array<SymbolRow>({
    {"app.badge.fill", {0xe7cc}},                           // apps_outage
    {"app.fill", {0xe069}},                                 // web_asset
    {"arrow.right", {0xe5c8}},                              // arrow_forward
    {"arrow.triangle.2.circlepath", {0xe627}},              // sync
    {"arrow.up.arrow.down", {0xe8d5}},                      // swap_vert
    {"arrow.up.right", {0xf1e1}},                           // north_east
    {"arrow.up.right.circle.fill", {0xe1ca}},               // outbound
    {"arrow.uturn.backward", {0xe166}},                     // undo
    {"bird.fill", {0xe00b}},                                // flutter_dash
    {"brain.head.profile", {0xea4a}},                       // psychology
    {"camera.fill", {0xe412}},                              // photo_camera
    {"checkmark", {0xe5ca}},                                // check
    {"checkmark.circle.fill", {0xe86c}},                    // check_circle
    {"checkmark.seal.fill", {0xef76}},                      // verified
    {"checkmark.shield.fill", {0xe8e8}},                    // verified_user
    {"chevron.left", {0xe5cb}},                             // chevron_left
    {"chevron.left.forwardslash.chevron.right", {0xe86f}},  // code
    {"chevron.right", {0xe5cc}},                            // chevron_right
    {"clock.arrow.circlepath", {0xe889}},                   // history
    {"cloud.fill", {0xe2bd}},                               // cloud
    {"cube.box.fill", {0xea25}},                            // token
    {"cube.transparent", {0xe9fe}},                         // view_in_ar
    {"cup.and.saucer.fill", {0xe541}},                      // local_cafe
    {"curlybraces", {0xead3}},                              // data_object
    {"doc.fill", {0xe24d}},                                 // insert_drive_file
    {"exclamationmark.circle.fill", {0xe000}},              // error
    {"exclamationmark.triangle.fill", {0xe002}},            // warning
    {"folder.fill", {0xe2c7}},                              // folder
    {"gamecontroller.fill", {0xea28}},                      // sports_esports
    {"gearshape.2.fill", {0xf10c}},                         // miscellaneous_services
    {"gearshape.fill", {0xe8b8}},                           // settings
    {"globe", {0xe894}},                                    // language
    {"hammer.fill", {0xf10b}},                              // handyman
    {"hand.raised.fill", {0xe769}},                         // front_hand
    {"house.fill", {0xe88a}},                               // home
    {"info.circle", {0xe88f}},                              // info_outline
    {"info.circle.fill", {0xe88e}},                         // info
    {"iphone.gen3", {0xe32c}},                              // smartphone
    {"iphone.slash", {0xe201}},                             // mobile_off
    {"lock.shield.fill", {0xe9e0, 0xe897, Inner::cutOut}},  // shield with lock
    {"magnifyingglass", {0xe8b6}},                          // search
    {"minus", {0xe15b}},                                    // remove
    {"mug.fill", {0xf1f3}},                                 // sports_bar
    {"p.square.fill", {0xeb36, 0xe54f, Inner::cutOut}},     // square with local_parking
    {"person.crop.circle", {0xe853}},                       // account_circle
    {"play.rectangle.fill", {0xf06a}},                      // smart_display
    {"power", {0xe8ac}},                                    // power_settings_new
    {"questionmark.circle.fill", {0xe887}},                 // help
    {"scope", {0xe55c}},                                    // my_location
    {"shippingbox", {0xe149}},                              // archive
    {"shippingbox.fill", {0xe1a1}},                         // inventory_2
    {"sparkles", {0xe65f}},                                 // auto_awesome
    {"speedometer", {0xe9e4}},                              // speed
    {"square", {0xe3c6}},                                   // crop_square
    {"square.grid.2x2.fill", {0xe9b0}},                     // grid_view
    {"terminal", {0xeb8e}},                                 // terminal
    {"trash", {0xe92e}},                                    // delete_outline
    {"trash.fill", {0xe872}},                               // delete
    {"wand.and.stars", {0xe663}},                           // auto_fix_high
    {"xmark", {0xe5cd}},                                    // close
});
static_assert(std::ranges::is_sorted(symbolRows, std::ranges::less{}, &SymbolRow::name));

}  // namespace

SymbolGlyph symbolGlyph(std::string_view name) {
    const auto row = std::ranges::lower_bound(symbolRows, name, {}, &SymbolRow::name);
    if (row == symbolRows.end() || row->name != name) return {};
    return row->glyph;
}

}  // namespace tidewell
