#pragma once

#include "runtime/Moment.h"

#include <string>

namespace kelvaro {

/// Divides day and night into equal parts and hands out, by weekday, the moments of the inauspicious and
/// named periods.
///
/// Set the four inputs, call `findtimes`, read the results. What a call does not assign keeps its earlier
/// value. Parts are whole seconds, so the last boundary of a span can miss its end by some seconds. Raises
/// OverflowError for spans beyond 32 bits of seconds.
class clsTimes {
public:
    // Inputs: civil moments at the place.
    Moment Sunrisetime;
    Moment Sunsettime;
    Moment currentdate;
    Moment SunRiseNexttime;

    // Results.
    Moment vaarvelaStart, vaarvelaEnd, kaalvelaStart, kaalvelaEnd, RahukaalStart, RahukaalEnd;
    Moment GulikaRise_Day, GulikaStart_Day, GulikaEnd_Day;
    Moment yamaghanta2Start_Day, yamaghanta2End_Day, ArdhayamaStart_Day, ArdhayamaEnd_Day;
    Moment Kantaka2Start_Day, Kantaka2End_Day, KaalratriStart, KaalratriEnd;
    Moment GulikaRise_Night, GulikaStart_Night, GulikaEnd_Night;
    Moment yamaghanta2Start_Night, yamaghanta2End_Night, ArdhayamaStart_Night, ArdhayamaEnd_Night;
    Moment Kantaka2Start_Night, Kantaka2End_Night, KulikaStart_Day, KulikaEnd_Day;
    Moment kaalvela2Start, bkaalvela2Start, kaalvela2End, yamaghantaStart, yamaghantaEnd;
    Moment KantakaStart, KantakaEnd, KulikaStart_Night, KulikaEnd_Night;
    /// Lists joined by "~": planetary hours by weekday name, with clock times "hh:mm:ss".
    std::string HoraName_DayTemp, HoraStart_DayTemp, HoraEnd_DayTemp;
    std::string HoraName_NightTemp, HoraStart_NightTemp, HoraEnd_NightTemp;
    Moment VishaGhatiStart, VishaGhatiEnd, MandiRise_Day, MandiRise_Night, AmritaGhatiStart, AmritaGhatiEnd;
    /// Lists joined by "~": the thirty muhurtas of day and night, with clock times "hh:mm:ss".
    std::string DoGhatiMuhurtaName_Temp, DoGhatiMuhurtaStart_Temp, DoGhatiMuhurtaEnd_Temp;
    Moment kaalaRise_Day, kaalaRise_Night, karesaRise_Day, karesaRise_Night, KalainananRise_Day,
        KalainananRise_Night, YamagantaRise_Night, YamagantaRise_Day, VidaghatiRise_Day, VidaghatiRise_Night,
        ArdhaPrakarananRise_Day, ArdhaPrakarananRise_Night;

    void findtimes();
};

} // namespace kelvaro
