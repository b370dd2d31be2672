// Generates speaker layouts as a `speakers` message for halcyra~.control; for Max's js object.
//   ring COUNT [DISTANCE]   a circle, clockwise from front left, with the first pair symmetric about the front
//   iem FILE                a layout in the JSON format of the IEM plug-ins

autowatch = 1;
inlets = 1;
outlets = 1;

// Azimuth in degrees, clockwise from the front, -180 to below 180.
function wrapped(azimuth) {
    return azimuth - 360 * Math.floor((azimuth + 180) / 360);
}

function ringMessage(count, distance) {
    var message = ["speakers", "ad"];
    for (var i = 0; i < count; i++)
        message.push(wrapped(-180 / count + 360 * i / count), distance);
    return message;
}

// Throws a text if the layout is invalid. Azimuths in the file increase to the left; imaginary loudspeakers are
// skipped.
function iemMessage(text) {
    var layout = JSON.parse(text);
    layout = layout.LoudspeakerLayout || layout;
    if (!layout.Loudspeakers || !layout.Loudspeakers.length)
        throw "the file holds no Loudspeakers";
    var real = layout.Loudspeakers.filter(function (speaker) { return !speaker.IsImaginary; });
    real.sort(function (a, b) { return (a.Channel || 0) - (b.Channel || 0); });
    var message = ["speakers", "aed"];
    real.forEach(function (speaker) {
        if (typeof speaker.Azimuth !== "number" || typeof speaker.Elevation !== "number")
            throw "a loudspeaker has no Azimuth or no Elevation";
        message.push(wrapped(-speaker.Azimuth), speaker.Elevation, typeof speaker.Radius === "number" ? speaker.Radius : 1);
    });
    return message;
}

function ring(count, distance) {
    if (!(count >= 1 && count <= 64))
        return error("ring: the number of speakers is from 1 to 64\n");
    outlet(0, ringMessage(Math.floor(count), distance > 0 ? distance : 1));
}

function iem(name) {
    var file = new File(name, "read");
    if (!file.isopen)
        return error("iem: cannot read " + name + "\n");
    var text = "";
    while (file.position < file.eof)
        text += file.readstring(4096);
    file.close();
    try {
        outlet(0, iemMessage(text));
    } catch (problem) {
        error("iem: " + name + ": " + problem + "\n");
    }
}
