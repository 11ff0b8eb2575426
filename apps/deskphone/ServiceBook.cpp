#include "apps/deskphone/ServiceBook.h"

namespace deskphone {

const std::array<Service, 5> SERVICES{{
    {"Service.canteen",
     {"Service.canteen.soup", "Service.canteen.dish", "Service.canteen.cake", "Service.canteen.hours"},
     ""},
    {"Service.weather", {"Service.weather.morning", "Service.weather.noon", "Service.weather.evening"}, ""},
    {"Service.news", {"Service.news.lift", "Service.news.car.park", "Service.news.drill"}, ""},
    {"Service.desk", {}, "030 115"},
    {"Service.wake.up", {}, "030 116"},
}};

} // namespace deskphone
