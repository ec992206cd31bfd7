#include "ui/componentes/Simbolos.h"

#include <algorithm>
#include <iterator>

namespace ovanta {

namespace {

struct Simbolo
{
    std::string_view nombre;
    char16_t glifo;
};

/// In the order of the names.
constexpr Simbolo simbolos[] = {
    {"arrow.clockwise", 0xe5d5},                             // refresh
    {"arrow.clockwise.circle", 0xf053},                      // restart_alt
    {"arrow.down.circle", 0xf181},                           // arrow_circle_down
    {"arrow.down.to.line", 0xe258},                          // vertical_align_bottom
    {"arrow.up.arrow.down", 0xe8d5},                         // swap_vert
    {"battery.0", 0xebdc},                                   // battery_0_bar
    {"battery.100", 0xe1a4},                                 // battery_full
    {"battery.100.bolt", 0xe1a3},                            // battery_charging_full
    {"battery.25", 0xebe0},                                  // battery_2_bar
    {"battery.50", 0xebe2},                                  // battery_4_bar
    {"battery.75", 0xebd4},                                  // battery_5_bar
    {"camera.viewfinder", 0xe3b4},                           // center_focus_strong
    {"chart.bar.fill", 0xe26b},                              // bar_chart
    {"chart.bar.xaxis", 0xe26a},                             // insert_chart_outlined
    {"chart.line.downtrend.xyaxis", 0xe8e3},                 // trending_down
    {"chart.treemap", 0xe871},                               // dashboard
    {"checkmark", 0xe5ca},                                   // check
    {"checkmark.circle", 0xe92d},                            // check_circle_outline
    {"checkmark.circle.fill", 0xe86c},                       // check_circle
    {"checkmark.shield", 0xe8e8},                            // verified_user
    {"checkmark.shield.fill", 0xe8e8},                       // verified_user
    {"chevron.right", 0xe5cc},                               // chevron_right
    {"chevron.up.chevron.down", 0xe5d7},                     // unfold_more
    {"clock", 0xe8b5},                                       // schedule
    {"clock.arrow.circlepath", 0xe889},                      // history
    {"clock.badge.checkmark", 0xe2e6},                       // task_alt
    {"clock.badge.questionmark", 0xf17d},                    // history_toggle_off
    {"cpu", 0xe30d},                                         // developer_board
    {"doc.fill", 0xe24d},                                    // insert_drive_file
    {"doc.on.doc", 0xe14d},                                  // content_copy
    {"exclamationmark.arrow.triangle.2.circlepath", 0xe629}, // sync_problem
    {"exclamationmark.circle", 0xe001},                      // error_outline
    {"exclamationmark.octagon.fill", 0xe160},                // report
    {"exclamationmark.triangle", 0xf083},                    // warning_amber
    {"exclamationmark.triangle.fill", 0xe002},               // warning
    {"externaldrive.fill", 0xe1db},                          // storage
    {"eye.slash", 0xe8f5},                                   // visibility_off
    {"folder", 0xe2c8},                                      // folder_open
    {"folder.badge.plus", 0xe2cc},                           // create_new_folder
    {"folder.fill", 0xe2c7},                                 // folder
    {"gauge.with.dots.needle.67percent", 0xe9e4},            // speed
    {"gearshape", 0xe8b8},                                   // settings
    {"hammer", 0xea59},                                      // hardware
    {"hand.raised.fill", 0xe769},                            // front_hand
    {"heart.text.square", 0xeaa2},                           // monitor_heart
    {"info.circle", 0xe88f},                                 // info_outline
    {"info.circle.fill", 0xe88e},                            // info
    {"internaldrive", 0xe1db},                               // storage
    {"ipad", 0xe331},                                        // tablet_mac
    {"iphone.gen3", 0xe325},                                 // phone_iphone
    {"iphone.gen3.slash", 0xe327},                           // phonelink_off
    {"lightbulb", 0xe90f},                                   // lightbulb_outline
    {"list.bullet", 0xe241},                                 // format_list_bulleted
    {"lock.fill", 0xe897},                                   // lock
    {"lock.open", 0xe898},                                   // lock_open
    {"lock.shield", 0xe32a},                                 // security
    {"macwindow", 0xe069},                                   // web_asset
    {"magnifyingglass", 0xe8b6},                             // search
    {"memorychip", 0xe322},                                  // memory
    {"menubar.rectangle", 0xe069},                           // web_asset
    {"minus", 0xe15b},                                       // remove
    {"moon.zzz", 0xef44},                                    // bedtime
    {"photo", 0xe3f4},                                       // image
    {"photo.on.rectangle.angled", 0xe413},                   // photo_library
    {"photo.stack", 0xe3b6},                                 // collections
    {"plus", 0xe145},                                        // add
    {"power", 0xe8ac},                                       // power_settings_new
    {"power.circle", 0xe932},                                // offline_bolt
    {"powerplug", 0xe63c},                                   // power
    {"puzzlepiece.extension", 0xe87b},                       // extension
    {"shippingbox", 0xe1a1},                                 // inventory_2
    {"shippingbox.fill", 0xe1bd},                            // widgets
    {"sparkles", 0xe65f},                                    // auto_awesome
    {"square.stack.3d.up", 0xe53b},                          // layers
    {"thermometer.medium", 0xe1ff},                          // device_thermostat
    {"trash", 0xe872},                                       // delete
    {"wand.and.stars", 0xe663},                              // auto_fix_high
    {"waveform.path.ecg", 0xe6e1},                           // show_chart
    {"wrench.and.screwdriver", 0xf10b},                      // handyman
    {"xmark", 0xe5cd},                                       // close
};

} // namespace

std::optional<char16_t> glifoDeSimbolo(std::string_view nombre)
{
    const auto *hallado = std::ranges::lower_bound(simbolos, nombre, {}, &Simbolo::nombre);
    if (hallado == std::end(simbolos) || hallado->nombre != nombre) return std::nullopt;
    return hallado->glifo;
}

QString Simbolos::glifo(const QString &nombre) const
{
    const QByteArray clave = nombre.toUtf8();
    const auto glifo = glifoDeSimbolo({clave.constData(), static_cast<std::size_t>(clave.size())});
    return glifo ? QString(QChar(*glifo)) : QString();
}

} // namespace ovanta
