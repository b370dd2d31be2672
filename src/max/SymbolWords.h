#pragma once

/** The words of the family's symbol table, in field order. W (word) is a field named like its word; AS (field, text) is
    one whose word is not an identifier. Append new words at the end only. */
// clang-format off
#define ORVANEMAX_SYMBOL_WORDS(W, AS) \
    W(active) W(add) W(air) W(annotation) W(anchor) W(angular) W(aperture) W(append) W(area) W(areas) \
    W(attr_modified) W(autodrywet) W(autofrontback) W(axis) W(az) W(azim) W(azimelev) W(azimuth) W(background) \
    W(backgroundcolor) W(bang) W(barycenter) W(binaural) W(bitdepth) W(bgcolor) W(blocksize) W(bpatcher) W(bpc) \
    W(bril) W(buffer) W(buffering) W(buffername) W(buffer_modified) W(buffersize) AS(buffer_tilde, "buffer~") \
    W(bug) W(bypass) W(cascade) W(cascades) W(category) W(channel) W(cluster) W(clear) W(cm) W(color) \
    W(colormap) W(column) AS(comma, ",") W(count) W(crit) W(crossfadetime) W(cursor) W(cursorcolor) W(cutoff) \
    W(curvecolor) W(dB) W(dblclick) W(decoding) AS(default_, "default") W(deg) W(delay) W(delays) W(description) \
    W(digest) W(direct) W(directeq) W(dirty) W(dist) W(distr) W(distance) W(dontreset) W(done) W(doppler) \
    W(down) W(drywet) W(drop) W(dropmode) W(dsp_add64) W(dynamic) W(early) W(echodensity) W(emitter) \
    AS(empty, "") W(enabled) W(end) W(enumvals) W(error) W(face) W(fact) W(fadein) W(fadeout) \
    AS(false_, "false") W(fftsize) W(fh) W(filelist) W(filename) W(filesaved) W(filesize) W(filter) W(fir) \
    W(fgcolor) W(fl) AS(float_, "float") W(float64) W(folder) W(font) AS(free_, "free") W(freq) W(freqs) \
    W(format) W(front) W(frontback) W(frontal) W(fullpath) W(FullPacket) W(g0) W(G0) W(gh) W(Gh) W(gl) W(Gl) \
    W(gm) W(Gm) W(gain) W(gains) W(getname) W(globalsymbol_binding) W(globalsymbol_unbinding) W(grids) \
    W(gridcolor) W(groupref) W(header) W(heaviness) W(height) W(hidden) W(hint) W(ignoreclick) W(iir) W(irsaved) \
    W(image) W(infinite) W(inputdelay) W(inputlevel) W(interpolationmode) W(interpolationtime) W(invisible) \
    W(iterations) W(kemar) W(KEMAR) W(kurtosis) W(label) W(latency) W(length) W(level) W(levels) W(list) \
    W(listener) W(liveness) W(locked) AS(long_, "long") W(lookat) W(low) W(m) W(magnitude) W(marker) \
    W(markerspos) W(matrix) W(max) W(maxvalue) W(maxorder) W(min) W(minvalue) W(mode) W(mouse) W(mm) \
    W(multipleoutlets) W(mute) W(name) AS(namespace_, "namespace") W(nativewindow) W(nearfield) W(noise) W(none) \
    W(norm) W(normalize) W(null) W(numanchors) W(numchannels) W(numcols) W(numdelays) W(numinputs) \
    W(numinternals) W(numleds) W(nummarkers) W(numoutputs) W(numrows) W(numsources) W(numreverbs) W(numspeakers) \
    W(offset) W(omni) W(options) W(order) W(orientation) W(output) W(outputlevel) W(overlap) W(oversampling) \
    W(overwrite) W(panning) W(parallel) W(parameter_enable) W(params) W(patching_position) W(patching_rect) \
    W(patching_size) W(patcherview) W(pause) W(peak) W(peakhold) W(peripheric) W(perform) W(phase) W(phi) \
    W(pitch) W(post) W(pres) W(presentation) W(presentation_position) W(presentation_rect) W(presentation_size) \
    W(progress) W(Q) W(rad) W(radius) W(ramp) W(rate) W(recallpreset) W(receiver) W(rect) W(remove) W(renderer) \
    W(reset) W(reverb) W(rms) W(robust) W(roll) W(rolloff) W(room) W(roomsize) W(route) W(row) W(rt10) W(rt20) \
    W(rt30) W(samplerate) W(samples) W(selected) W(selection) W(selstart) W(selend) W(shape) W(showcursor) \
    W(size) W(sizeinsamps) W(solo) W(soundspeed) W(source) W(sources) W(sourcecolor) W(ambrelnamespace) W(span) \
    W(speaker) W(speakers) W(spread) W(spreadxyz) W(sr) W(standard) W(start) W(status) W(stereo) W(subgain) \
    W(subtype) W(sum) W(symbol) W(tab) W(taps) W(thickness) W(threshold) W(times) W(tmax) W(tod) W(top) W(tr0) \
    W(trl) W(trm) W(trh) W(trans2bin) W(trim) AS(true_, "true") W(type) W(units) W(unwrap) W(varname) W(verbose) \
    W(velocity) W(viewername) W(visible) W(vzoom) W(warning) W(waveform) W(wclose) W(weights) W(wfs) W(width) \
    W(window) W(windowmoveable) W(windowresizeable) W(windowsize) W(windowtitle) W(windowtopleft) W(x) W(xy) \
    W(xyz) W(y) W(ymax) W(ymin) W(yaw) W(z) W(zoom) W(zoomfactor) W(zoomlock) W(ad) W(ade) W(ae) W(aed) \
    AS(azim_add, "azim++") AS(dist_add, "dist++") AS(dist_mul, "dist*=") W(elev) W(elevation) \
    AS(elev_add, "elev++") W(ambrel3) AS(x_add, "x++") AS(y_add, "y++") AS(z_add, "z++") W(airfreq) \
    W(cluster_distr) W(cluster_end) W(cluster_start) W(crossearselection) W(dbap) W(delayscorrection) \
    W(distanceattenuation) W(early_distr) W(early_end) W(early_shape) W(early_start) W(early_width) W(env) \
    W(hlshelf) W(panr) W(transaural) W(sourcespositions) W(speakerspositions) W(hrtffile) W(nearfieldhrtffile) \
    W(nfcompensationfilters) W(warmth) W(prer) W(revp) W(gainscorrection) W(sourcemute) W(sourcesolo) W(pan_rev) \
    W(modaldensity) W(vbap) W(vbap2d) W(hoa2d) W(hoa3d) W(nfchoa2d) W(nfchoa3d) W(orientationmode) \
    W(reverb_start) W(roomairabsorption) W(roomairrolloff) W(numcascades) W(reverberance) W(listenerposition) \
    W(listeneryaw) W(listenerpitch) W(listenerroll) W(transauralfile) W(showaperture) W(showcriteria) \
    W(showviewer) W(speakerseq) W(speakerstimealignment) W(reverbid) W(rpy) W(outputfiltersfreq) \
    W(outputfiltersQ) W(outputfiltersgain) W(outputfilterstype) W(sourceairabsorption) W(roomactive) \
    W(_parameter_initial) W(_parameter_initial_enable) W(_parameter_invisible) W(_parameter_longname) \
    W(_parameter_order) W(_parameter_shortname) W(_parameter_type) W(annotation_name)
// clang-format on
