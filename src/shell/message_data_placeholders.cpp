#include "shell/message_data.h"

namespace tarnwick::message_data {
namespace {

constexpr MessageEntry kEntries[] = {
    {396, "catalogue.column_description", "Description", "Beschreibung"},
    {592, "date.month_january", "January", "Januar"},
    {593, "date.month_february", "February", "Februar"},
    {594, "date.month_march", "March", "März"},
    {595, "date.month_april", "April", "April"},
    {596, "date.month_may", "May", "Mai"},
    {597, "date.month_june", "June", "Juni"},
    {598, "date.month_july", "July", "Juli"},
    {599, "date.month_august", "August", "August"},
    {600, "date.month_september", "September", "September"},
    {601, "date.month_october", "October", "Oktober"},
    {602, "date.month_november", "November", "November"},
    {603, "date.month_december", "December", "Dezember"},
};

}  // namespace

std::span<const MessageEntry> Placeholders() { return kEntries; }

}  // namespace tarnwick::message_data
