;; The i-d chart (焓湿图) in the headless editor: a chart for Beijing's summer pressure,
;; three state points on it, a mixture of outdoor and return air, and the table of the
;; points beside the chart; at the end the calculation report as a Word document.
;; Run with: build/adscon --cwd build/example-run --save build/example-run/id-chart.dxf examples/id-chart.lsp

;; The chart at 99.86 kPa, -10..45 °C and 0..30 g/kg, 300 by 400 drawing units, with its
;; lower-left corner at the origin.
(host-dialog "crti_dtdlg"
  '((set "pressure" "99.86") (set "t_min" "-10") (set "t_max" "45") (press "accept")))
(host-getpoint '(0 0))
(c:crti_dt)

;; Outdoor summer air, 33.5 °C with a wet bulb of 26.4 °C, and the room at 26 °C and 55 %.
(host-dialog "ci_dt"
  '((set "tts" "1") (set "pressure" "99.86") (set "temp" "33.5") (set "ts" "26.4") (press "result")))
(c:ci_dt)
(host-dialog "ci_dt"
  '((set "tfy" "1") (set "pressure" "99.86") (set "temp" "26") (set "fy" "55") (press "result")))
(c:ci_dt)

;; A point picked on the chart: its state is shown and saved to wair002.txt.
(host-dialog "ci_dt" '((press "sel_point")))
(host-getpoint '(120 210))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:ci_dt)

;; Mixing 18000 kg/h of outdoor air with 42000 kg/h of return air, saved and drawn on the chart.
(host-dialog "airmixdlg" '((set "press" "99.86") (press "procres") (press "i_d")))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:airmix)

;; The table of the three points beside the chart, then listed.
(c:crti_dtbl)
(host-dialog "vi_dtbldlg" '())
(c:vi_dtbl)
;; The outdoor air cooled by a coil towards an apparatus dew point of 12 °C, leaving at 95 %:
;; saved to qres.txt and drawn on the chart with an arrow, the dew point beyond it dashed.
(host-dialog "constpdlg"
  '((set "k_adp" "1") (set "B" "99.86") (set "t1" "33.5") (set "fy1" "57") (set "tl" "12")
    (set "fy2" "95") (set "G" "18000") (set "label1" "W") (set "label2" "L") (set "label3" "A")
    (press "cal")))
(host-dialog "constpres" '((press "saveres")))
(c:constp)

;; The calculation report 计算书.docx: the saved point and mixture in tables, and the chart
;; with their states marked.
(host-dialog "q_resdlg" '((press "report")))
(host-dialog "q_report" '((press "accept")))
(c:q_res)
(princ)
