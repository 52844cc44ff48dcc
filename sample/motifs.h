#pragma once

#include <QStringView>
#include <span>

// What the pictures of the sample company show, as shapes on a ground of 400 by 300.
namespace sample {

enum class Kind { Rect, Round, Ellipse, Triangle, Ring };
enum class Tone { Base, Dark, Light, Accent, White };

struct Shape {
  Kind kind;
  Tone tone;
  double x, y, w, h;
};

struct Motif {
  QStringView name;
  std::span<const Shape> shapes;
};

inline constexpr Shape kBox[] = {
    {Kind::Rect, Tone::Base, 110, 130, 180, 120},   {Kind::Rect, Tone::Dark, 100, 104, 200, 34},
    {Kind::Rect, Tone::Accent, 188, 104, 24, 146},  {Kind::Ellipse, Tone::Accent, 148, 76, 52, 30},
    {Kind::Ellipse, Tone::Accent, 200, 76, 52, 30}, {Kind::Ellipse, Tone::Light, 190, 84, 20, 20}};
inline constexpr Shape kMug[] = {{Kind::Ring, Tone::Dark, 236, 130, 70, 80},
                                 {Kind::Round, Tone::Base, 120, 96, 140, 154},
                                 {Kind::Ellipse, Tone::Dark, 120, 84, 140, 30},
                                 {Kind::Ellipse, Tone::Light, 130, 89, 120, 20},
                                 {Kind::Ellipse, Tone::Accent, 154, 146, 72, 72}};
inline constexpr Shape kGlass[] = {{Kind::Round, Tone::Light, 150, 60, 100, 104},
                                   {Kind::Ellipse, Tone::Base, 150, 96, 100, 80},
                                   {Kind::Ellipse, Tone::Accent, 156, 88, 88, 22},
                                   {Kind::Rect, Tone::Light, 195, 170, 10, 68},
                                   {Kind::Ellipse, Tone::Light, 150, 232, 100, 20}};
inline constexpr Shape kTumbler[] = {{Kind::Round, Tone::Light, 146, 66, 108, 184},
                                     {Kind::Round, Tone::Base, 152, 120, 96, 124},
                                     {Kind::Rect, Tone::Dark, 206, 30, 8, 120},
                                     {Kind::Round, Tone::Accent, 162, 150, 76, 56}};
inline constexpr Shape kBottle[] = {{Kind::Rect, Tone::Dark, 182, 40, 36, 26},
                                    {Kind::Round, Tone::Base, 184, 58, 32, 70},
                                    {Kind::Round, Tone::Base, 156, 108, 88, 142},
                                    {Kind::Rect, Tone::Accent, 156, 146, 88, 66},
                                    {Kind::Ellipse, Tone::Light, 184, 162, 32, 32}};
inline constexpr Shape kCandle[] = {{Kind::Ellipse, Tone::Accent, 188, 48, 24, 44},
                                    {Kind::Rect, Tone::Dark, 198, 84, 4, 22},
                                    {Kind::Round, Tone::Light, 140, 104, 120, 146},
                                    {Kind::Rect, Tone::Base, 140, 136, 120, 78},
                                    {Kind::Ellipse, Tone::Accent, 176, 150, 48, 48}};
inline constexpr Shape kDiffuser[] = {
    {Kind::Rect, Tone::Dark, 176, 34, 5, 120},     {Kind::Rect, Tone::Dark, 197, 24, 5, 130},
    {Kind::Rect, Tone::Dark, 218, 38, 5, 116},     {Kind::Rect, Tone::Light, 174, 128, 52, 24},
    {Kind::Round, Tone::Base, 140, 148, 120, 102}, {Kind::Rect, Tone::Accent, 160, 178, 80, 44}};
inline constexpr Shape kSoap[] = {{Kind::Round, Tone::Dark, 108, 182, 184, 68},
                                  {Kind::Round, Tone::Base, 124, 128, 152, 84},
                                  {Kind::Ellipse, Tone::Accent, 160, 146, 80, 46},
                                  {Kind::Ellipse, Tone::White, 250, 100, 26, 26},
                                  {Kind::Ellipse, Tone::White, 278, 82, 16, 16}};
inline constexpr Shape kTin[] = {{Kind::Round, Tone::Base, 116, 128, 168, 122},
                                 {Kind::Ellipse, Tone::Dark, 116, 104, 168, 54},
                                 {Kind::Ellipse, Tone::Light, 128, 110, 144, 40},
                                 {Kind::Ellipse, Tone::Accent, 164, 170, 72, 60}};
inline constexpr Shape kBook[] = {
    {Kind::Round, Tone::Dark, 122, 70, 160, 184}, {Kind::Rect, Tone::White, 130, 80, 148, 166},
    {Kind::Round, Tone::Base, 112, 64, 160, 184}, {Kind::Rect, Tone::Dark, 112, 64, 20, 184},
    {Kind::Rect, Tone::Accent, 158, 108, 88, 40}, {Kind::Rect, Tone::Light, 236, 64, 10, 184}};
inline constexpr Shape kFrame[] = {{Kind::Rect, Tone::Base, 128, 56, 144, 194},
                                   {Kind::Rect, Tone::White, 146, 74, 108, 158},
                                   {Kind::Rect, Tone::Light, 156, 84, 88, 138},
                                   {Kind::Ellipse, Tone::Accent, 182, 104, 36, 40},
                                   {Kind::Triangle, Tone::Dark, 164, 150, 72, 72}};
inline constexpr Shape kCloth[] = {{Kind::Rect, Tone::Base, 116, 70, 168, 180},
                                   {Kind::Rect, Tone::Light, 116, 70, 168, 28},
                                   {Kind::Rect, Tone::Accent, 116, 206, 168, 12},
                                   {Kind::Rect, Tone::Dark, 116, 226, 168, 6},
                                   {Kind::Ring, Tone::Accent, 172, 122, 56, 56}};
inline constexpr Shape kPillow[] = {{Kind::Round, Tone::Dark, 98, 106, 204, 146},
                                    {Kind::Round, Tone::Base, 104, 98, 192, 146},
                                    {Kind::Ellipse, Tone::Light, 150, 130, 100, 78},
                                    {Kind::Ring, Tone::Accent, 172, 152, 32, 32},
                                    {Kind::Ring, Tone::Accent, 194, 152, 32, 32}};
inline constexpr Shape kBag[] = {{Kind::Ring, Tone::Dark, 164, 50, 72, 96},
                                 {Kind::Rect, Tone::Base, 120, 108, 160, 142},
                                 {Kind::Rect, Tone::Dark, 120, 108, 160, 12},
                                 {Kind::Triangle, Tone::Accent, 166, 148, 68, 60},
                                 {Kind::Ellipse, Tone::Light, 186, 178, 28, 28}};
inline constexpr Shape kGift[] = {{Kind::Round, Tone::Dark, 92, 148, 216, 100},
                                  {Kind::Round, Tone::Base, 92, 132, 216, 96},
                                  {Kind::Rect, Tone::Accent, 116, 168, 168, 18},
                                  {Kind::Ellipse, Tone::Light, 116, 160, 34, 34},
                                  {Kind::Rect, Tone::White, 168, 174, 96, 5}};
inline constexpr Shape kRibbon[] = {
    {Kind::Ellipse, Tone::Dark, 110, 70, 180, 180}, {Kind::Ellipse, Tone::Base, 122, 82, 156, 156},
    {Kind::Ellipse, Tone::Light, 156, 116, 88, 88}, {Kind::Ellipse, Tone::White, 176, 136, 48, 48},
    {Kind::Rect, Tone::Base, 262, 214, 90, 24},     {Kind::Rect, Tone::Accent, 262, 223, 90, 5}};
inline constexpr Shape kSweets[] = {
    {Kind::Ellipse, Tone::Dark, 96, 176, 84, 74},   {Kind::Ellipse, Tone::Base, 100, 166, 76, 70},
    {Kind::Ellipse, Tone::Dark, 220, 176, 84, 74},  {Kind::Ellipse, Tone::Base, 224, 166, 76, 70},
    {Kind::Ellipse, Tone::Dark, 158, 116, 84, 74},  {Kind::Ellipse, Tone::Base, 162, 106, 76, 70},
    {Kind::Triangle, Tone::Accent, 184, 82, 32, 34}};

inline constexpr Motif kMotifs[] = {{u"box", kBox},           {u"mug", kMug},       {u"glass", kGlass},
                                    {u"tumbler", kTumbler},   {u"bottle", kBottle}, {u"candle", kCandle},
                                    {u"diffuser", kDiffuser}, {u"soap", kSoap},     {u"tin", kTin},
                                    {u"book", kBook},         {u"frame", kFrame},   {u"cloth", kCloth},
                                    {u"pillow", kPillow},     {u"bag", kBag},       {u"gift", kGift},
                                    {u"ribbon", kRibbon},     {u"sweets", kSweets}};

}  // namespace sample
